#pragma once

#include <QString>

#include <string>
#include <vector>

#include "genericintegration/io/FAnchorAutomaton.h"
#include "genericintegration/io/FAnchorFilter.h"
#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FShortWordSearch.h"

class FAnchorWalk;
class FResultText;

/** The first and the last place of an anchor; they begin at -1 when it isn't there. */
struct FAnchorPlaces {
    FByteRange first = {-1, -1};
    FByteRange last = {-1, -1};
};

/**
 * Finds the first and the last occurrence of many anchors in a text, all in one go. Case is ignored as QString does,
 * by the simple folding of each character.
 *
 * An anchor with half a surrogate pair is never found; no file in UTF-8 and no keyboard brings one. The time is linear
 * in the text plus the anchors' characters, whatever stands in them. An object can search any number of texts.
 */
class FAnchorSearch {
 public:
    /** The anchors may be empty (and are never found then), equal, or equal but for case. */
    explicit FAnchorSearch(const std::vector<QString>& anchors);

    /** The places of each anchor in a text without the white space at its end. */
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
    std::vector<int> mShortWords;         //!< the words that the search for short ones has, by their number there
    std::vector<FAnchorFilter> mFilters;  //!< the first one also looks for what isn't ASCII
    qint64 mLongest = 0;                  //!< bytes that a word can take in a text
    bool mHard = false;                   //!< there are words for which no filter has pieces
};
