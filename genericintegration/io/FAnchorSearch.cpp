#include "genericintegration/io/FAnchorSearch.h"

#include "genericintegration/io/FAnchorWalk.h"
#include "genericintegration/io/FByteQuads.h"
#include "host/run/FResultText.h"
#include "host/run/FUtf8.h"

#include <QVector>

#include <algorithm>
#include <map>

namespace {

std::u32string folded(const QString& text) {
    std::u32string result;
    result.reserve(static_cast<size_t>(text.size()));
    for (const uint c : text.toUcs4()) {
        result.push_back(FUtf8::foldCase(c));
    }
    return result;
}

std::vector<std::u32string> wordsOf(const std::vector<QString>& anchors, std::vector<int>& wordOfAnchor) {
    std::map<std::u32string, int> numbers;
    std::vector<std::u32string> words;
    for (const QString& anchor : anchors) {
        if (anchor.isEmpty() || !anchor.isValidUtf16()) {
            wordOfAnchor.push_back(-1);
            continue;
        }
        const auto [place, added] = numbers.emplace(folded(anchor), static_cast<int>(words.size()));
        if (added) {
            words.push_back(place->first);
        }
        wordOfAnchor.push_back(place->second);
    }
    return words;
}

// The only characters beyond ASCII that fold to an ASCII letter.
constexpr std::string_view kelvinSign = "\u212A";
constexpr std::string_view longS = "\u017F";

bool hasFoldingToAscii(std::string_view text) {
    return text.find(kelvinSign) != std::string_view::npos || text.find(longS) != std::string_view::npos;
}

/** Maximum number of bytes of a word in a text. */
qint64 longestForm(const std::u32string& word) {
    size_t longest = 0;
    for (const char32_t c : word) {
        longest += c >= 0x80 ? 4 : c == U'k' ? kelvinSign.size() : c == U's' ? longS.size() : 1;
    }
    return static_cast<qint64>(longest);
}

/** Size of the end of a text that neither the filters nor the search for short words cover. */
constexpr qint64 unsearchedEnd = std::max(2 * FAnchorFilter::probeSize, FShortWordSearch::margin);

void scan(FAnchorWalk& walk, const FAnchorFilter& filter, std::string_view text, qint64 begin, qint64 nonAsciiReach) {
    const qint64 reach = std::max(filter.reach(), nonAsciiReach);
    qint64 walked = begin;
    qint64 probe = filter.next(text, begin, nonAsciiReach > 0);
    while (probe >= 0) {
        walked = walk.walk(std::max(walked, probe - reach), probe + FAnchorFilter::probeSize - 1);
        probe = filter.next(text, walked, nonAsciiReach > 0);
    }
}

FByteRange rangeBefore(std::string_view text, qint64 end, size_t characters, bool ascii) {
    if (end < 0) {
        return {-1, -1};
    }
    if (ascii) {
        return {end - static_cast<qint64>(characters), end};
    }
    qint64 begin = end;
    for (; characters > 0; --characters) {
        begin = FUtf8::previous(text, begin);
    }
    return {begin, end};
}

}  // namespace

FAnchorSearch::FAnchorSearch(const std::vector<QString>& anchors)
    : mWords(wordsOf(anchors, mWordOfAnchor)), mAutomaton(mWords) {
    std::vector<std::u32string> longer;
    std::vector<std::u32string> shorter;
    for (const int number : mAutomaton.byLength()) {
        const std::u32string& word = mWords[static_cast<size_t>(number)];
        const qint64 run = FAnchorFilter::asciiRun(word);
        const bool ascii = run == static_cast<qint64>(word.size());
        mLongest = std::max(mLongest, longestForm(word));
        mHard |= !ascii && run < FAnchorFilter::pieceSize;
        if (FByteQuads::isQuick() && mShortSearch.add(word)) {
            mShortWords.push_back(number);
        } else if (run >= FAnchorFilter::pieceSize) {
            longer.push_back(word);
        } else if (ascii) {
            shorter.push_back(word);
        }
    }
    if (!shorter.empty()) {
        mFilters.emplace_back(shorter);
    }
    if (!longer.empty() || mFilters.empty()) {
        mFilters.emplace_back(longer);
    }
}

std::vector<FAnchorPlaces> FAnchorSearch::findFrom(std::string_view text, qint64 begin, bool ascii) const {
    std::vector<FAnchorPlaces> places(mWordOfAnchor.size());
    if (mWords.empty()) {
        return places;
    }
    FAnchorWalk walk(mAutomaton, text);
    qint64 nonAsciiReach =
        !ascii && (mHard || hasFoldingToAscii(text.substr(static_cast<size_t>(begin)))) ? mLongest : 0;
    for (const FAnchorFilter& filter : mFilters) {
        if (!filter.isEmpty() || nonAsciiReach > 0) {
            scan(walk, filter, text, begin, nonAsciiReach);
        }
        nonAsciiReach = 0;
    }
    findShortWords(walk, text, begin);
    walk.walk(std::max(begin, walk.size() - mLongest - unsearchedEnd), walk.size());

    const std::vector<FByteRange>& ends = walk.finish();
    for (size_t anchor = 0; anchor < places.size(); ++anchor) {
        if (mWordOfAnchor[anchor] < 0) {
            continue;
        }
        const size_t word = static_cast<size_t>(mWordOfAnchor[anchor]);
        places[anchor].first = rangeBefore(text, ends[word].begin, mWords[word].size(), ascii);
        places[anchor].last = rangeBefore(text, ends[word].end, mWords[word].size(), ascii);
    }
    return places;
}

void FAnchorSearch::findShortWords(FAnchorWalk& walk, std::string_view text, qint64 begin) const {
    const std::vector<FByteRange> ends = mShortSearch.find(text.substr(static_cast<size_t>(begin)));
    for (size_t i = 0; i < ends.size(); ++i) {
        if (ends[i].begin >= 0) {
            walk.note(mShortWords[i], begin + ends[i].begin, begin + ends[i].end);
        }
    }
}

std::vector<FAnchorPlaces> FAnchorSearch::findInTrimmed(const FResultText& text) const {
    return findFrom(text.text().substr(0, static_cast<size_t>(text.trimmedSize())), 0, text.index().isAscii());
}

std::vector<FAnchorPlaces> FAnchorSearch::extendToWhole(const FResultText& text,
                                                        std::vector<FAnchorPlaces> places) const {
    if (text.trimmedSize() == text.size()) {
        return places;
    }
    const qint64 begin = std::max<qint64>(0, text.trimmedSize() - mLongest);
    const std::vector<FAnchorPlaces> after = findFrom(text.text(), begin, text.index().isAscii());
    for (size_t anchor = 0; anchor < places.size(); ++anchor) {
        if (places[anchor].first.begin < 0) {
            places[anchor].first = after[anchor].first;
        }
        if (after[anchor].last.begin >= 0) {
            places[anchor].last = after[anchor].last;
        }
    }
    return places;
}
