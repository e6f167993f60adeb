#pragma once

#include <QtGlobal>

#include <array>
#include <string_view>

#include "genericintegration/io/FQuadSet.h"

/** Up to eight sets of four bytes in a row, which a text is compared with at 32 places at a time. */
class FByteQuads {
 public:
    static constexpr size_t SetCount = 8;
    static constexpr qint64 BlockSize = 32;
    /** Bytes that the comparison of a block reads. */
    static constexpr qint64 ReadSize = BlockSize + qint64(FQuadSet::Length) - 1;

    /** What was met in a block. */
    struct Block {
        quint32 places = 0;                           //!< a bit for each place
        std::array<unsigned char, BlockSize> sets{};  //!< of each place, a bit for each set
    };

    /** Whether the processor compares many places at once. Without that, this is slow. */
    static bool isQuick();

    /** Puts a set in the place of another. */
    void assign(size_t number, const FQuadSet& set);

    /**
     * The first block with something met, of those that begin at an offset and each step further; the step may be
     * negative. Gives the block's offset; -1 for none. Blocks that can't be read wholly are left out.
     */
    qint64 next(std::string_view text, qint64 offset, qint64 step, Block& met) const;

    /** The same, without help of the processor. */
    qint64 nextPlainly(std::string_view text, qint64 offset, qint64 step, Block& met) const;

 private:
    using Halves = std::array<unsigned char, 16>;

    qint64 nextQuickly(std::string_view text, qint64 offset, qint64 step, Block& met) const;
    unsigned char setsAt(const char* place) const;

    std::array<Halves, FQuadSet::Length> mLow{};  //!< by index and lower half of a byte, a bit for each set that has it
    std::array<Halves, FQuadSet::Length> mHigh{};
};
