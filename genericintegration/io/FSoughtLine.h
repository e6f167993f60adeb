#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FFoundValue.h"

#include <optional>

class FResultText;

/** The line that a value is read from. */
struct FSoughtLine {
    std::optional<FByteRange> range;  //!< none if there is no such line
    FFoundFlags flags{};

    /** Counted down from the top of the trimmed text, or for a line below 0 up from its bottom: -1 is the last line. */
    static FSoughtLine inText(const FResultText& text, int line);

    /**
     * Counted down from an anchor: 0 is the rest of its line, after the anchor. A line below 0 is counted up, -1 being
     * the line above the anchor's; if there is none above, from the bottom of the untrimmed text.
     */
    static FSoughtLine fromAnchor(const FResultText& text, FByteRange anchor, int line);
};
