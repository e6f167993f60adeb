#pragma once

#include "genericintegration/io/FValueDescription.h"
#include "genericintegration/marking/FTextRange.h"

#include <optional>

class FResultSample;
struct FSeparatorSettings;

/**
 * How a value is described so that the reader finds the very number that a user points at. The line is counted from a
 * text before or above it, if there is one that tells the place, since other runs may print more or fewer lines.
 */
struct FPlaceProposal {
    FValueDescription value;  //!< its name comes from the text around the number; may be empty
    FTextRange range;         //!< of the number in the document

    /**
     * Nothing if the reader finds no number there. In an exponent that the reader takes for a number of its own, as in
     * 1.5D+03, it is the number before it.
     */
    static std::optional<FPlaceProposal> at(const FResultSample& sample, const FSeparatorSettings& separators,
                                            int position);
    /**
     * The same with the anchor that is at a place of the document; nothing if the number can't be reached from it.
     * @param number  place of the number, as another proposal or the reader gave it
     */
    static std::optional<FPlaceProposal> from(const FResultSample& sample, const FSeparatorSettings& separators,
                                              int number, FTextRange anchor);
};
