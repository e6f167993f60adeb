#pragma once

#include "genericintegration/io/FQuadSet.h"

#include <QtGlobal>

#include <array>
#include <string_view>

/** Compares a text with up to eight sets of four consecutive bytes, at 32 places at a time. */
class FByteQuads {
 public:
    static constexpr size_t setCount = 8;
    static constexpr qint64 blockSize = 32;
    /** Number of bytes that the comparison of a block reads. */
    static constexpr qint64 readSize = blockSize + qint64(FQuadSet::length) - 1;

    /** The hits in a block. */
    struct Block {
        quint32 places = 0;                           //!< a bit for each place with a hit
        std::array<unsigned char, blockSize> sets{};  //!< for each place, a bit for each set that matches
    };

    /** Whether the processor compares many places at once; otherwise this class is slow. */
    static bool isQuick();

    /** Replaces a set. */
    void assign(size_t number, const FQuadSet& set);

    /**
     * Finds the first block with a hit, of those that start at an offset and at each step from it; the step may be
     * negative. Returns the offset of the block, or -1 for none. Skips blocks that can't be read in full.
     */
    qint64 next(std::string_view text, qint64 offset, qint64 step, Block& met) const;

    /** Does the same without special instructions of the processor. */
    qint64 nextPlainly(std::string_view text, qint64 offset, qint64 step, Block& met) const;

 private:
    using Halves = std::array<unsigned char, 16>;

    qint64 nextQuickly(std::string_view text, qint64 offset, qint64 step, Block& met) const;
    unsigned char setsAt(const char* place) const;

    std::array<Halves, FQuadSet::length>
        mLow{};  //!< by index and lower half of a byte: a bit for each set that contains it
    std::array<Halves, FQuadSet::length> mHigh{};
};
