#pragma once

#include "genericintegration/io/FAnchorAutomaton.h"
#include "genericintegration/io/FByteRange.h"

#include <string_view>
#include <vector>

/**
 * Feeds parts of a text to an automaton and records the first and the last end of each word. Time is linear in the
 * size of the parts, however many words end at a place.
 */
class FAnchorWalk {
 public:
    /** Automaton and text must outlive this object. */
    FAnchorWalk(const FAnchorAutomaton& automaton, std::string_view text);

    qint64 size() const { return static_cast<qint64>(mText.size()); }

    /** Walks from `begin` to `over` and on until no word is pending or the text ends. Returns where it stopped. */
    qint64 walk(qint64 begin, qint64 over);

    /** Records ends of a word that were found by other means. */
    void note(int word, qint64 first, qint64 last);

    /** The ends of the first and the last recorded occurrence of each word; -1 for none. */
    const std::vector<FByteRange>& finish();

 private:
    const FAnchorAutomaton& mAutomaton;
    std::string_view mText;
    std::vector<FByteRange> mEnds;
};
