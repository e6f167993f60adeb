#pragma once

#include <string_view>
#include <vector>

#include "genericintegration/io/FByteQuads.h"
#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FShortWordGroup.h"

/** One pass over a text that looks for short words, in either direction. */
class FShortWordPass {
 public:
    /**
     * A word found so often is looked for no longer. Text and ends, which have a place for the number of each word,
     * must outlive this object.
     */
    FShortWordPass(std::string_view text, std::vector<FShortWord> words, int often, std::vector<FByteRange>& ends);

    /**
     * The pass over the blocks from an offset on, each a step further. Widens the ends by those of the occurrences,
     * and gives the words that were found so often.
     */
    std::vector<FShortWord> run(qint64 offset, qint64 step);

 private:
    void makeGroups(std::vector<FShortWord> words);
    void checkBlock(const FByteQuads::Block& met, qint64 offset);
    void checkGroup(qint64 place, size_t number);
    void regroup();
    bool isAt(const FShortWord& word, qint64 begin) const;
    void note(const FShortWord& word, qint64 end);

    std::string_view mText;
    int mOften;
    std::vector<FByteRange>& mEnds;
    std::vector<int> mCounts;  //!< by the words' numbers
    FByteQuads mQuads;
    std::vector<FShortWordGroup> mGroups;
    bool mForward = true;  //!< only then do words avoid others
    bool mIsGroupEmpty = false;
    bool mIsVain = false;  //!< the quads of a group were met too often without one of its words
    int mMostVainly = 64;  //!< how often is not too often
    std::vector<FShortWord> mCommon;
};
