#pragma once

#include "genericintegration/io/FByteRange.h"
#include "host/run/FNumberOrigin.h"

#include <QString>

#include <limits>

class FResultText;

using FFoundFlag = FNumberFlag;
using FFoundFlags = FNumberFlags;

/**
 * Result of the search for a value. Of the inherited members, the text is only set for one found between separators,
 * and those that describe the mark aren't set.
 */
struct FFoundValue : FNumberOrigin {
    double number = std::numeric_limits<double>::quiet_NaN();  //!< of an average: the mean
    FByteRange range{};                                        //!< of a text found as a number; else empty

    /** The text found. `searched` is the text that was searched. */
    QString textIn(const FResultText& searched) const;
};
