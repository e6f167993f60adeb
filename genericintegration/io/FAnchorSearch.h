#pragma once

#include "genericintegration/io/FAnchorAutomaton.h"
#include "genericintegration/io/FAnchorFilter.h"
#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FShortWordSearch.h"

#include <QString>

#include <string>
#include <vector>

class FAnchorWalk;
class FResultText;

/** The first and the last place of an anchor; they begin at -1 if the text doesn't contain it. */
struct FAnchorPlaces {
    FByteRange first = {-1, -1};
    FByteRange last = {-1, -1};
};

/**
 * Finds the first and the last occurrence of many anchors in a text, all in one pass. Ignores case as QString does, by
 * simple folding of each character.
 *
 * An anchor with an unpaired surrogate is never found; neither files in UTF-8 nor keyboards produce one. Time is linear
 * in the text plus the characters of the anchors, whatever they are. An object can search any number of texts.
 */
class FAnchorSearch {
 public:
    /** Anchors may be empty, which are never found, and may be equal, also apart from case. */
    explicit FAnchorSearch(const std::vector<QString>& anchors);

    /** The places of each anchor in a text without its trailing white space. */
    std::vector<FAnchorPlaces> findInTrimmed(const FResultText& text) const;

    /** The places in the whole text, given those in the trimmed one. */
    std::vector<FAnchorPlaces> extendToWhole(const FResultText& text, std::vector<FAnchorPlaces> places) const;

 private:
    std::vector<FAnchorPlaces> findFrom(std::string_view text, qint64 begin, bool ascii) const;
    void findShortWords(FAnchorWalk& walk, std::string_view text, qint64 begin) const;

    std::vector<int> mWordOfAnchor;      //!< -1 for an anchor that can't be found
    std::vector<std::u32string> mWords;  //!< the anchors, folded, each once
    FAnchorAutomaton mAutomaton;
    FShortWordSearch mShortSearch;
    std::vector<int> mShortWords;         //!< the words that the search for short words finds, by their number there
    std::vector<FAnchorFilter> mFilters;  //!< the first one also finds bytes that aren't ASCII
    qint64 mLongest = 0;                  //!< maximum number of bytes of a word in a text
    bool mHard = false;                   //!< there are words of which no filter has a piece
};
