#include "genericintegration/io/FAnchorAutomaton.h"

#include <algorithm>

FAnchorAutomaton::FAnchorAutomaton(const std::vector<std::u32string>& words) : mInside(words.size(), noWord) {
    std::vector<Word> sorted;
    sorted.reserve(words.size());
    size_t characters = 0;
    for (const std::u32string& word : words) {
        sorted.push_back({&word, static_cast<int>(sorted.size())});
        characters += word.size();
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const Word& left, const Word& right) { return *left.text < *right.text; });
    mNodes.reserve(characters + 1);
    std::vector<Range> ranges;
    ranges.reserve(characters + 1);
    ranges.push_back({0, sorted.size(), 0});
    addNode(0, noWord);
    for (size_t node = 0; node < mNodes.size(); ++node) {
        addChildren(sorted, ranges, static_cast<int>(node));
    }
}

void FAnchorAutomaton::addChildren(const std::vector<Word>& words, std::vector<Range>& ranges, int node) {
    auto [begin, last, depth] = ranges[static_cast<size_t>(node)];
    if (node != startState && words[begin].text->size() == depth) {
        ++begin;
    }
    const int firstChild = static_cast<int>(mNodes.size());
    while (begin < last) {
        const char32_t c = (*words[begin].text)[depth];
        size_t end = begin + 1;
        while (end < last && (*words[end].text)[depth] == c) {
            ++end;
        }
        const int added = addNode(c, words[begin].text->size() == depth + 1 ? words[begin].number : noWord);
        if (node == startState && c < mStarts.size()) {
            mStarts[c] = added;
        }
        ranges.push_back({begin, end, depth + 1});
        link(added, node);
        begin = end;
    }
    mNodes[static_cast<size_t>(node)].firstChild = firstChild;
    mNodes[static_cast<size_t>(node)].childCount = static_cast<int>(mNodes.size()) - firstChild;
}

int FAnchorAutomaton::addNode(char32_t c, int word) {
    mNodes.push_back({c, 0, 0, startState, word});
    return static_cast<int>(mNodes.size()) - 1;
}

// Nodes are ordered by depth, so every node that this one can fall back to is already linked.
void FAnchorAutomaton::link(int node, int parent) {
    Node& self = mNodes[static_cast<size_t>(node)];
    if (parent != startState) {
        self.fail = next(mNodes[static_cast<size_t>(parent)].fail, self.c);
    }
    const int inside = mNodes[static_cast<size_t>(self.fail)].word;
    if (self.word == noWord) {
        self.word = inside;
    } else {
        mInside[static_cast<size_t>(self.word)] = inside;
        mByLength.push_back(self.word);
    }
}

int FAnchorAutomaton::searchChild(const Node& node, char32_t c) const {
    const auto begin = mNodes.begin() + node.firstChild;
    const auto end = begin + node.childCount;
    const auto before = [](const Node& candidate, char32_t wanted) { return candidate.c < wanted; };
    const auto at = std::lower_bound(begin, end, c, before);
    return at != end && at->c == c ? static_cast<int>(at - mNodes.begin()) : startState;
}
