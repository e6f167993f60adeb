#include "genericintegration/io/FAnchorFilter.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>

namespace {

// Large enough that probes rarely hit by chance, small enough for the table of hashes to stay in the cache.
constexpr int hashBits = 18;

constexpr qint64 longestCharacter = 4;

// Longer steps need fewer probes, but more pieces for each word.
constexpr qint64 longestStep = 16;

// Pieces come from the first characters of a word where possible: after a hit, the text from the start of the word to
// the piece must be read again.
constexpr size_t longestReach = 24;

// Folds capitals to small letters. Some other bytes coincide as well, so a probe may hit more, but never less.
quint64 folded(quint64 probe) {
    return probe | 0x2020202020202020;
}

size_t hashOf(quint64 piece) {
    return (piece * 0x9E3779B97F4A7C15) >> (64 - hashBits);
}

quint64 pieceOf(std::u32string_view characters) {
    quint64 piece = 0;
    for (size_t i = 0; i < characters.size(); ++i) {
        piece |= quint64(characters[i] | 0x20) << (8 * i);
    }
    return piece;
}

// How rare a character is in the output of programs.
constexpr std::array<int, 128> asciiRarities = [] {
    std::array<int, 128> rarities{};
    for (size_t c = 0; c < rarities.size(); ++c) {
        rarities[c] = c <= ' ' ? 0 : c < 'a' || c > 'z' ? 1 : 3;
    }
    for (const char c : std::string_view("aeinorst")) {
        rarities[static_cast<size_t>(c)] = 2;
    }
    return rarities;
}();

bool isAscii(char32_t c) {
    return c < 0x80;
}

// A piece with a character that isn't ASCII ranks below all others.
int rarity(char32_t c) {
    constexpr int notAscii = -100;
    return isAscii(c) ? asciiRarities[c] : notAscii;
}

/**
 * Start of the best part of a word for pieces that start at adjacent characters; the size of the word if no piece is
 * ASCII.
 *
 * Any of the pieces may be the one that is hit, so a part is as good as its most common piece.
 */
size_t findRegion(std::u32string_view word, size_t pieces, size_t width) {
    std::vector<int> rarities;
    rarities.reserve(std::min(word.size(), longestReach + pieces));
    int sum = 0;
    for (const char32_t c : word.substr(0, width - 1)) {
        sum += rarity(c);
    }
    size_t best = word.size();
    int rarest = -1;
    for (size_t begin = 0; begin + width <= word.size() && (begin < longestReach + pieces || rarest < 0); ++begin) {
        sum += rarity(word[begin + width - 1]);
        rarities.push_back(sum);
        sum -= rarity(word[begin]);
        if (rarities.size() < pieces) {
            continue;
        }
        const int least = *std::min_element(rarities.end() - static_cast<std::ptrdiff_t>(pieces), rarities.end());
        if (least > rarest) {
            rarest = least;
            best = begin + 1 - pieces;
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

size_t FAnchorFilter::rarestPart(std::u32string_view word, size_t size) {
    return findRegion(word, 1, size);
}

FAnchorFilter::FAnchorFilter(const std::vector<std::u32string>& words) : mEmpty(words.empty()) {
    qint64 shortest = probeSize + longestStep - 1;
    for (const std::u32string& word : words) {
        shortest = std::min(shortest, asciiRun(word));
    }
    // Longer pieces are hit less often by chance, shorter ones allow longer steps.
    mWidth = std::min(std::max(std::min(shortest, pieceSize), shortest / 2 + 1), probeSize);
    mStep = shortest - mWidth + 1;
    const size_t pieces = std::max<size_t>(words.size() * static_cast<size_t>(mStep), 1);
    mSlots.resize(std::bit_ceil(2 * pieces));
    mHashes.resize((size_t(1) << hashBits) / 64);
    for (const std::u32string& word : words) {
        add(word);
    }
}

void FAnchorFilter::add(std::u32string_view word) {
    const size_t width = static_cast<size_t>(mWidth);
    const size_t step = static_cast<size_t>(mStep);
    const size_t region = findRegion(word, step, width);
    for (size_t begin = region; begin < region + step; ++begin) {
        addPiece(pieceOf(word.substr(begin, width)));
    }
    qint64 reach = mStep - 1;
    for (const char32_t c : word.substr(0, region)) {
        reach += isAscii(c) ? 1 : longestCharacter;
    }
    mReach = std::max(mReach, reach);
}

void FAnchorFilter::addPiece(quint64 piece) {
    mHashes[hashOf(piece) / 64] |= quint64(1) << (hashOf(piece) % 64);
    size_t slot = hashOf(piece) & (mSlots.size() - 1);
    while (mSlots[slot] != 0 && mSlots[slot] != piece) {
        slot = (slot + 1) & (mSlots.size() - 1);
    }
    mSlots[slot] = piece;
}

bool FAnchorFilter::isPiece(quint64 piece) const {
    size_t slot = hashOf(piece) & (mSlots.size() - 1);
    while (mSlots[slot] != 0 && mSlots[slot] != piece) {
        slot = (slot + 1) & (mSlots.size() - 1);
    }
    return mSlots[slot] == piece;
}

qint64 FAnchorFilter::next(std::string_view text, qint64 offset, bool alsoNonAscii) const {
    return alsoNonAscii ? nextProbe<true>(text, offset) : nextProbe<false>(text, offset);
}

// Four probes share one branch.
template <bool AlsoNonAscii>
qint64 FAnchorFilter::nextProbe(std::string_view text, qint64 offset) const {
    constexpr quint64 stopper = AlsoNonAscii ? 0x8080808080808080 : 0;
    const quint64 mask = ~quint64(0) >> (8 * (probeSize - mWidth));
    const qint64 step = AlsoNonAscii ? std::min(mStep, probeSize) : mStep;
    const quint64* const hashes = mHashes.data();
    const auto probeAt = [text](qint64 place) { return qFromLittleEndian<quint64>(text.data() + place); };
    const auto mayHit = [=](qint64 place) {
        const quint64 probe = probeAt(place);
        const size_t hash = hashOf(folded(probe) & mask);
        return (hashes[hash / 64] >> (hash % 64) & 1) != 0 || (probe & stopper) != 0;
    };
    const auto hits = [this, mask, probeAt](qint64 place) {
        const quint64 probe = probeAt(place);
        return (probe & stopper) != 0 || isPiece(folded(probe) & mask);
    };
    const qint64 end = static_cast<qint64>(text.size()) - probeSize;
    for (; offset + 3 * step <= end; offset += 4 * step) {
        if (!mayHit(offset) && !mayHit(offset + step) && !mayHit(offset + 2 * step) && !mayHit(offset + 3 * step)) {
            continue;
        }
        for (qint64 place = offset; place <= offset + 3 * step; place += step) {
            if (hits(place)) {
                return place;
            }
        }
    }
    for (; offset <= end; offset += step) {
        if (hits(offset)) {
            return offset;
        }
    }
    return -1;
}
