#include "genericintegration/io/FQuadSet.h"

#include <bit>

FQuadSet::FQuadSet(const FShortWord& word) {
    for (size_t i = 0; i < length; ++i) {
        const qint64 at = word.quad() + static_cast<qint64>(i);
        if (at < word.size()) {
            add(i, word.small(at));
            add(i, word.capital(at));
        } else {
            mLow[i] = 0xFFFF;
            mHigh[i] = 0xFFFF;
        }
    }
}

void FQuadSet::add(size_t index, unsigned char byte) {
    mLow[index] = static_cast<quint16>(mLow[index] | 1U << (byte & 0x0F));
    mHigh[index] = static_cast<quint16>(mHigh[index] | 1U << (byte >> 4));
}

FQuadSet& FQuadSet::operator|=(const FQuadSet& other) {
    for (size_t i = 0; i < length; ++i) {
        mLow[i] |= other.mLow[i];
        mHigh[i] |= other.mHigh[i];
    }
    return *this;
}

double FQuadSet::size() const {
    double size = 1;
    for (size_t i = 0; i < length; ++i) {
        size *= std::popcount(mLow[i]) * std::popcount(mHigh[i]);
    }
    return size;
}
