#pragma once

#include <QString>

#include <string_view>

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

/** Finds signs that a number was cut, passed over, or is none. The signs change no result. */
namespace FSuspicion {

/** Of a number, from what stands right before and behind it in a text. */
FFoundFlags ofNumber(std::string_view text, FByteRange number);

/** Of text in which no number was found. */
FFoundFlags ofText(std::string_view text);

/** Whether ofText() may find anything in a part of a text. This is quick, and errs on the side of yes. */
bool mayBeIn(std::string_view text);

/** Of a column that isn't a finite number. */
FFoundFlags ofColumn(const QString& text);

}  // namespace FSuspicion
