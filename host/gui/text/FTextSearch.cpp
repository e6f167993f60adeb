#include "host/gui/text/FTextSearch.h"

#include <algorithm>
#include <functional>

namespace {

constexpr qint64 sliceSize = 16 << 20;

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

struct Equal {
    bool matchesCase;
    bool operator()(char a, char b) const { return matchesCase ? a == b : lower(a) == lower(b); }
};

struct Hash {
    bool matchesCase;
    std::size_t operator()(char c) const { return static_cast<unsigned char>(matchesCase ? c : lower(c)); }
};

}  // namespace

FTextSearch::FTextSearch(const QString& what, bool matchesCase, qint64 from, bool backwards)
    : mWhat(what.toUtf8().toStdString()), mMatchesCase(matchesCase), mIsBackwards(backwards), mFrom(from), mAt(from) {}

/** The first place in the slice, or the last one of a search backwards; -1 if there is none. */
qint64 FTextSearch::findIn(std::string_view slice) const {
    const std::boyer_moore_horspool_searcher searcher(mWhat.begin(), mWhat.end(), Hash{mMatchesCase},
                                                      Equal{mMatchesCase});
    qint64 found = -1;
    for (auto at = slice.begin(); at != slice.end();) {
        at = std::search(at, slice.end(), searcher);
        if (at != slice.end()) {
            found = at - slice.begin();
            if (!mIsBackwards) {
                break;
            }
            ++at;
        }
    }
    return found;
}

FTextSearch::State FTextSearch::searchSlice(std::string_view text) {
    const qint64 size = static_cast<qint64>(text.size());
    const qint64 overlap = static_cast<qint64>(mWhat.size()) - 1;
    if (mWhat.empty()) {
        return State::NotFound;
    }
    // After the other end, up to what the first part didn't search.
    const qint64 last = mIsBackwards ? (mIsWrapped ? std::max<qint64>(mFrom - overlap, 0) : 0)
                                     : (mIsWrapped ? std::min(mFrom + overlap, size) : size);
    mAt = std::clamp<qint64>(mAt, 0, size);
    const qint64 begin = mIsBackwards ? std::max(mAt - sliceSize, last) : mAt;
    const qint64 end = mIsBackwards ? mAt : std::min(mAt + sliceSize, last);
    if (begin < end) {
        const qint64 found =
            findIn(text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
        if (found >= 0) {
            mFound = begin + found;
            return State::Found;
        }
    }
    mSearched += std::max<qint64>(end - begin, 0);
    mPercent = size == 0 ? 100 : static_cast<int>(std::min<qint64>(mSearched * 100 / size, 100));
    const bool isAtEnd = mIsBackwards ? begin <= last : end >= last;
    if (!isAtEnd) {
        mAt = mIsBackwards ? begin + overlap : end - overlap;
        return State::Searching;
    }
    if (mIsWrapped) {
        return State::NotFound;
    }
    mIsWrapped = true;
    mAt = mIsBackwards ? size : 0;
    return State::Searching;
}
