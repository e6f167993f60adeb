#include "genericintegration/io/FAnchorFilter.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int HashBits = 18;

constexpr qint64 LongestCharacter = 4;

// If it can be helped, no piece is taken from further back in a word: from its begin to the piece, nothing can be
// passed over.
constexpr size_t LongestReach = 24;

// A capital becomes a small letter. Other bytes fall together, too; that makes a probe meet more, never less.
quint64 folded(quint64 probe) {
    return probe | 0x2020202020202020;
}

quint64 hashOf(quint64 piece) {
    return (piece * 0x9E3779B97F4A7C15) >> (64 - HashBits);
}

quint64 pieceOf(std::u32string_view characters) {
    quint64 piece = 0;
    for (size_t i = 0; i < characters.size(); ++i)
        piece |= quint64(characters[i] | 0x20) << (8 * i);
    return piece;
}

// How seldom a character is in what programs print.
int rarity(char32_t c) {
    if (c <= U' ')
        return 0;
    if (c < U'a' || c > U'z')
        return 1;
    return std::u32string_view(U"aeinorst").find(c) == std::u32string_view::npos ? 3 : 2;
}

// A character that comes again adds nothing, so rulers and blanks are avoided.
int rarity(std::u32string_view piece) {
    int sum = 0;
    for (size_t i = 0; i < piece.size(); ++i)
        sum += piece.substr(0, i).find(piece[i]) == std::u32string_view::npos ? rarity(piece[i]) : 0;
    return sum;
}

bool isAscii(char32_t c) {
    return c < 0x80;
}

// Of as many pieces side by side as a step has bytes, one is probed: the most common one counts.
int rarity(std::u32string_view region, size_t width) {
    int least = rarity(region.substr(0, width));
    for (size_t begin = 1; begin + width <= region.size(); ++begin)
        least = std::min(least, rarity(region.substr(begin, width)));
    return least;
}

/// The best part of a word for pieces, of a given length.
size_t findRegion(std::u32string_view word, size_t length, size_t width) {
    size_t best = word.size();
    int rarest = -1;
    for (size_t begin = 0; begin + length <= word.size() && (begin < LongestReach || rarest < 0); ++begin) {
        const std::u32string_view region = word.substr(begin, length);
        if (!std::all_of(region.begin(), region.end(), isAscii))
            continue;
        const int least = rarity(region, width);
        if (least > rarest) {
            rarest = least;
            best = begin;
        }
    }
    return best;
}

}  // namespace

qint64 FAnchorFilter::asciiRun(std::u32string_view word) {
    qint64 longest = 0;
    qint64 run = 0;
    for (const char32_t c : word) {
        run = isAscii(c) ? run + 1 : 0;
        longest = std::max(longest, run);
    }
    return longest;
}

FAnchorFilter::FAnchorFilter(const std::vector<std::u32string>& words) : mHashes((size_t(1) << HashBits) / 64) {
    qint64 shortest = 2 * ProbeSize - 1;
    for (const std::u32string& word : words)
        shortest = std::min(shortest, asciiRun(word));
    // Long pieces are met less often by chance, short ones allow longer steps.
    mWidth = std::max(std::min(shortest, PieceSize), shortest / 2 + 1);
    mStep = shortest - mWidth + 1;
    for (const std::u32string& word : words)
        add(word);
    std::sort(mPieces.begin(), mPieces.end());
    mPieces.erase(std::unique(mPieces.begin(), mPieces.end()), mPieces.end());
}

void FAnchorFilter::add(std::u32string_view word) {
    const size_t width = static_cast<size_t>(mWidth);
    const size_t step = static_cast<size_t>(mStep);
    const size_t region = findRegion(word, width + step - 1, width);
    for (size_t begin = region; begin < region + step; ++begin) {
        const quint64 piece = pieceOf(word.substr(begin, width));
        const quint64 hash = hashOf(piece);
        mHashes[hash / 64] |= quint64(1) << (hash % 64);
        mPieces.push_back(piece);
    }
    qint64 reach = mStep - 1;
    for (const char32_t c : word.substr(0, region))
        reach += isAscii(c) ? 1 : LongestCharacter;
    mReach = std::max(mReach, reach);
}

qint64 FAnchorFilter::next(std::string_view text, qint64 offset, bool alsoNonAscii) const {
    const quint64 stopper = alsoNonAscii ? 0x8080808080808080 : 0;
    const quint64 mask = ~quint64(0) >> (8 * (ProbeSize - mWidth));
    const quint64* const hashes = mHashes.data();
    const qint64 step = mStep;
    for (const qint64 end = static_cast<qint64>(text.size()) - ProbeSize; offset <= end; offset += step) {
        const quint64 probe = qFromLittleEndian<quint64>(text.data() + offset);
        if ((probe & stopper) != 0)
            return offset;
        const quint64 piece = folded(probe) & mask;
        const quint64 hash = hashOf(piece);
        if ((hashes[hash / 64] >> (hash % 64) & 1) != 0 && std::binary_search(mPieces.begin(), mPieces.end(), piece))
            return offset;
    }
    return -1;
}
