#pragma once

#include <array>
#include <string>
#include <vector>

/**
 * Finds any number of words in one walk over a text: fed with the text's characters, its state tells which words end
 * there. A walk takes time linear in the text, whatever the words; making and keeping it, linear in the words.
 */
class FAnchorAutomaton {
 public:
    static constexpr int Start = 0;
    static constexpr int None = -1;

    /** The words are neither empty nor equal. */
    explicit FAnchorAutomaton(const std::vector<std::u32string>& words);

    /** The state after one more character. Start means that none of the words has begun. */
    int next(int state, char32_t c) const {
        for (;;) {
            const int reached = child(state, c);
            if (reached != Start || state == Start) {
                return reached;
            }
            state = mNodes[static_cast<size_t>(state)].fail;
        }
    }

    /** The longest word that ends in a state, or None. */
    int wordAt(int state) const { return mNodes[static_cast<size_t>(state)].word; }

    /** The longest other word that a word ends in, or None: where the one ends, the other does. */
    int wordInside(int word) const { return mInside[static_cast<size_t>(word)]; }

    /** The words, the shorter ones first. */
    const std::vector<int>& byLength() const { return mByLength; }

 private:
    struct Node {
        char32_t c = 0;
        int firstChild = 0;  //!< children stand side by side, ordered by their character
        int childCount = 0;
        int fail = Start;
        int word = None;
    };
    /** A word and its place among the words. */
    struct Word {
        const std::u32string* text;
        int number;
    };
    /** The sorted words from begin to end pass through a node of some depth. */
    struct Range {
        size_t begin;
        size_t end;
        size_t depth;
    };

    void addChildren(const std::vector<Word>& words, std::vector<Range>& ranges, int node);
    int addNode(char32_t c, int word);
    void link(int node, int parent);
    int searchChild(const Node& node, char32_t c) const;

    // Behind the first characters of the words, most nodes have one child.
    int child(int node, char32_t c) const {
        if (node == Start && c < mStarts.size()) {
            return mStarts[c];
        }
        const Node& self = mNodes[static_cast<size_t>(node)];
        if (self.childCount != 1) {
            return searchChild(self, c);
        }
        return mNodes[static_cast<size_t>(self.firstChild)].c == c ? self.firstChild : Start;
    }

    std::vector<Node> mNodes;        //!< in the order of their depth
    std::array<int, 128> mStarts{};  //!< children of the start by ASCII character
    std::vector<int> mInside;
    std::vector<int> mByLength;
};
