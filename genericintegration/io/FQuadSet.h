#pragma once

#include "genericintegration/io/FShortWord.h"

#include <QtGlobal>

#include <array>
#include <string_view>

/**
 * A set of quads (four consecutive bytes) that keeps only the halves of the bytes: it contains each quad of which every
 * half occurs in that position of an added quad.
 */
class FQuadSet {
 public:
    static constexpr size_t length = FShortWord::quadSize;

    FQuadSet() = default;
    /** The quads that the search for a word looks for: in any case, with any bytes after a short word. */
    explicit FQuadSet(const FShortWord& word);

    FQuadSet& operator|=(const FQuadSet& other);

    /** Number of quads; up to 2^32. */
    double size() const;

    /** Whether a quad of the set has a byte with such a half at an index. */
    bool hasLow(size_t index, size_t half) const { return (mLow[index] >> half & 1) != 0; }
    bool hasHigh(size_t index, size_t half) const { return (mHigh[index] >> half & 1) != 0; }

 private:
    void add(size_t index, unsigned char byte);

    std::array<quint16, length> mLow{};  //!< a bit for each lower half of a byte
    std::array<quint16, length> mHigh{};
};
