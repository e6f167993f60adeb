#pragma once

#include <string_view>
#include <vector>

#include "genericintegration/io/FAnchorAutomaton.h"
#include "genericintegration/io/FByteRange.h"

/**
 * Walks an automaton over parts of a text and notes where each of its words ends first and last. Time is linear in
 * what is walked over, however many words end at a place.
 */
class FAnchorWalk {
 public:
    /** Automaton and text must outlive this object. */
    FAnchorWalk(const FAnchorAutomaton& automaton, std::string_view text);

    qint64 size() const { return static_cast<qint64>(mText.size()); }

    /** Walks from one place over another, and on until no word has begun or the text ends. Gives where it ended. */
    qint64 walk(qint64 begin, qint64 over);

    /** Notes ends of a word that were found in another way. */
    void note(int word, qint64 first, qint64 last);

    /** The ends of the first and the last occurrence of each word that were walked over or noted; -1 for none. */
    const std::vector<FByteRange>& finish();

 private:
    const FAnchorAutomaton& mAutomaton;
    std::string_view mText;
    std::vector<FByteRange> mEnds;
};
