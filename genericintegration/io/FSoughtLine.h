#pragma once

#include <optional>

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

class FResultText;

/** The line that a value is read from. */
struct FSoughtLine {
    std::optional<FByteRange> range;  //!< nothing when there is no such line
    FFoundFlags flags{};

    /** Counted from the top of the trimmed text, or upward from its bottom for a line below 0: -1 is the last line. */
    static FSoughtLine inText(const FResultText& text, int line);

    /**
     * Counted from an anchor: 0 is what stands behind it in its line. For a line below 0 upward from the line above
     * the anchor's; but if there is none, from the bottom of the untrimmed text.
     */
    static FSoughtLine fromAnchor(const FResultText& text, FByteRange anchor, int line);
};
