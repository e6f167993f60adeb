#include "genericintegration/io/FByteQuads.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

#include <cstring>

namespace {

void setBit(unsigned char& bits, size_t bit, bool on) {
    const unsigned mask = 1U << bit;
    bits = static_cast<unsigned char>(on ? bits | mask : bits & ~mask);
}

bool isReadable(std::string_view text, qint64 offset) {
    return offset >= 0 && offset + FByteQuads::readSize <= static_cast<qint64>(text.size());
}

}  // namespace

void FByteQuads::assign(size_t number, const FQuadSet& set) {
    for (size_t i = 0; i < FQuadSet::length; ++i) {
        for (size_t half = 0; half < mLow[i].size(); ++half) {
            setBit(mLow[i][half], number, set.hasLow(i, half));
            setBit(mHigh[i][half], number, set.hasHigh(i, half));
        }
    }
}

unsigned char FByteQuads::setsAt(const char* place) const {
    unsigned char sets = 0xFF;
    for (size_t i = 0; i < FQuadSet::length && sets != 0; ++i) {
        const unsigned char byte = static_cast<unsigned char>(place[i]);
        sets = static_cast<unsigned char>(sets & mLow[i][byte & 0x0F] & mHigh[i][byte >> 4]);
    }
    return sets;
}

qint64 FByteQuads::nextPlainly(std::string_view text, qint64 offset, qint64 step, Block& met) const {
    for (; isReadable(text, offset); offset += step) {
        met.places = 0;
        for (size_t i = 0; i < met.sets.size(); ++i) {
            met.sets[i] = setsAt(text.data() + offset + i);
            met.places |= quint32(met.sets[i] != 0) << i;
        }
        if (met.places != 0) {
            return offset;
        }
    }
    return -1;
}

#if defined(__x86_64__)

// A table of 16 bytes fits into a register, and one instruction looks up 32 bytes in it.
__attribute__((target("avx2"))) qint64 FByteQuads::nextQuickly(std::string_view text, qint64 offset, qint64 step,
                                                               Block& met) const {
    __m256i low[FQuadSet::length];
    __m256i high[FQuadSet::length];
    for (size_t i = 0; i < FQuadSet::length; ++i) {
        __m128i halves;
        std::memcpy(&halves, mLow[i].data(), sizeof halves);
        low[i] = _mm256_broadcastsi128_si256(halves);
        std::memcpy(&halves, mHigh[i].data(), sizeof halves);
        high[i] = _mm256_broadcastsi128_si256(halves);
    }
    const __m256i half = _mm256_set1_epi8(0x0F);
    for (; isReadable(text, offset); offset += step) {
        __m256i sets = _mm256_set1_epi8(-1);
        for (size_t i = 0; i < FQuadSet::length; ++i) {
            __m256i bytes;
            std::memcpy(&bytes, text.data() + offset + i, sizeof bytes);
            const __m256i lower = _mm256_and_si256(bytes, half);
            const __m256i upper = _mm256_and_si256(_mm256_srli_epi16(bytes, 4), half);
            sets = _mm256_and_si256(sets, _mm256_shuffle_epi8(low[i], lower));
            sets = _mm256_and_si256(sets, _mm256_shuffle_epi8(high[i], upper));
        }
        if (!_mm256_testz_si256(sets, sets)) {
            std::memcpy(met.sets.data(), &sets, sizeof sets);
            const __m256i missed = _mm256_cmpeq_epi8(sets, _mm256_setzero_si256());
            met.places = ~static_cast<quint32>(_mm256_movemask_epi8(missed));
            return offset;
        }
    }
    return -1;
}

bool FByteQuads::isQuick() {
    static const bool quick = __builtin_cpu_supports("avx2");
    return quick;
}

qint64 FByteQuads::next(std::string_view text, qint64 offset, qint64 step, Block& met) const {
    return isQuick() ? nextQuickly(text, offset, step, met) : nextPlainly(text, offset, step, met);
}

#else

bool FByteQuads::isQuick() {
    return false;
}

qint64 FByteQuads::next(std::string_view text, qint64 offset, qint64 step, Block& met) const {
    return nextPlainly(text, offset, step, met);
}

#endif
