#pragma once

#include "genericintegration/io/FByteQuads.h"
#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FShortWordGroup.h"

#include <string_view>
#include <vector>

/** One pass over a text, in either direction, that searches for short words. */
class FShortWordPass {
 public:
    /**
     * The search for a word ends once it was found `often` times. Text and ends must outlive this object; ends has an
     * element for the number of each word.
     */
    FShortWordPass(std::string_view text, std::vector<FShortWord> words, int often, std::vector<FByteRange>& ends);

    /**
     * Passes over the blocks at an offset and at each step from it. Extends the ends by those of the occurrences.
     * Returns the words that were found `often` times.
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
    std::vector<int> mCounts;  //!< by the number of the word
    FByteQuads mQuads;
    std::vector<FShortWordGroup> mGroups;
    bool mForward = true;  //!< otherwise words don't avoid the quads of others
    bool mIsGroupEmpty = false;
    bool mIsVain = false;  //!< the quads of a group had too many hits without one of its words
    int mMostVainly = 64;  //!< number of such hits that is too many
    std::vector<FShortWord> mCommon;
};
