#pragma once

#include <QtGlobal>

#include <array>
#include <string_view>

#include "genericintegration/io/FShortWord.h"

/**
 * A set of four bytes in a row that is told by the halves of the bytes: it has each row whose halves each stand in
 * that place of some row that was added.
 */
class FQuadSet {
 public:
    static constexpr size_t Length = FShortWord::QuadSize;

    FQuadSet() = default;
    /** The rows by which a word is looked for: in any case, any bytes behind it. */
    explicit FQuadSet(const FShortWord& word);

    FQuadSet& operator|=(const FQuadSet& other);

    /** Number of rows; up to 2^32. */
    double size() const;

    /** Whether the set has a byte with such a half at an index. */
    bool hasLow(size_t index, size_t half) const { return (mLow[index] >> half & 1) != 0; }
    bool hasHigh(size_t index, size_t half) const { return (mHigh[index] >> half & 1) != 0; }

 private:
    void add(size_t index, unsigned char byte);

    std::array<quint16, Length> mLow{};  //!< a bit for each lower half of a byte
    std::array<quint16, Length> mHigh{};
};
