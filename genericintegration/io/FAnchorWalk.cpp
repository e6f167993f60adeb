#include "genericintegration/io/FAnchorWalk.h"

#include "host/run/FUtf8.h"

#include <algorithm>

FAnchorWalk::FAnchorWalk(const FAnchorAutomaton& automaton, std::string_view text)
    : mAutomaton(automaton), mText(text), mEnds(automaton.byLength().size(), {-1, -1}) {}

// Records only the longest word at each place; finish() adds its suffixes.
qint64 FAnchorWalk::walk(qint64 begin, qint64 over) {
    int state = FAnchorAutomaton::startState;
    qint64 offset = begin;
    while (offset < size() && (offset <= over || state != FAnchorAutomaton::startState)) {
        state = mAutomaton.next(state, FUtf8::foldCase(FUtf8::next(mText, offset)));
        const int word = mAutomaton.wordAt(state);
        if (word != FAnchorAutomaton::noWord) {
            note(word, offset, offset);
        }
    }
    return offset;
}

const std::vector<FByteRange>& FAnchorWalk::finish() {
    const std::vector<int>& words = mAutomaton.byLength();
    for (auto word = words.rbegin(); word != words.rend(); ++word) {
        const FByteRange& ends = mEnds[static_cast<size_t>(*word)];
        const int inside = mAutomaton.wordInside(*word);
        if (inside != FAnchorAutomaton::noWord && ends.begin >= 0) {
            note(inside, ends.begin, ends.end);
        }
    }
    return mEnds;
}

void FAnchorWalk::note(int word, qint64 first, qint64 last) {
    FByteRange& ends = mEnds[static_cast<size_t>(word)];
    if (ends.begin < 0 || first < ends.begin) {
        ends.begin = first;
    }
    ends.end = std::max(ends.end, last);
}
