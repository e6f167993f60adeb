#pragma once

#include <array>
#include <string>
#include <vector>

/**
 * Finds any number of words in one pass over a text: fed with the characters of the text, its state gives the words
 * that end at the last one. A pass takes time linear in the text, whatever the words; construction takes time and
 * memory linear in the words.
 */
class FAnchorAutomaton {
 public:
    static constexpr int startState = 0;
    static constexpr int noWord = -1;

    /** The words must be non-empty and distinct. */
    explicit FAnchorAutomaton(const std::vector<std::u32string>& words);

    /** The state after one more character. In startState, the text read so far ends with the start of no word. */
    int next(int state, char32_t c) const {
        for (;;) {
            const int reached = child(state, c);
            if (reached != startState || state == startState) {
                return reached;
            }
            state = mNodes[static_cast<size_t>(state)].fail;
        }
    }

    /** The longest word that ends in a state, as its index; or noWord. */
    int wordAt(int state) const { return mNodes[static_cast<size_t>(state)].word; }

    /** The longest other word that is a suffix of a word, or noWord. It ends wherever the word ends. */
    int wordInside(int word) const { return mInside[static_cast<size_t>(word)]; }

    /** The indices of the words, those of shorter words first. */
    const std::vector<int>& byLength() const { return mByLength; }

 private:
    struct Node {
        char32_t c = 0;
        int firstChild = 0;  //!< children are adjacent, ordered by their character
        int childCount = 0;
        int fail = startState;
        int word = noWord;
    };
    /** A word and its index. */
    struct Word {
        const std::u32string* text;
        int number;
    };
    /** The sorted words, from begin to end, that pass through a node of this depth. */
    struct Range {
        size_t begin;
        size_t end;
        size_t depth;
    };

    void addChildren(const std::vector<Word>& words, std::vector<Range>& ranges, int node);
    int addNode(char32_t c, int word);
    void link(int node, int parent);
    int searchChild(const Node& node, char32_t c) const;

    // After the first characters of the words, most nodes have one child.
    int child(int node, char32_t c) const {
        if (node == startState && c < mStarts.size()) {
            return mStarts[c];
        }
        const Node& self = mNodes[static_cast<size_t>(node)];
        if (self.childCount != 1) {
            return searchChild(self, c);
        }
        return mNodes[static_cast<size_t>(self.firstChild)].c == c ? self.firstChild : startState;
    }

    std::vector<Node> mNodes;        //!< ordered by depth
    std::array<int, 128> mStarts{};  //!< children of the start by ASCII character
    std::vector<int> mInside;
    std::vector<int> mByLength;
};
