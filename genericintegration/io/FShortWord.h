#pragma once

#include <QtEndian>

#include <string_view>

/** A folded word of at most eight ASCII characters, with which eight bytes of a text are compared at once. */
class FShortWord {
 public:
    static constexpr size_t longest = 8;
    static constexpr size_t quadSize = 4;

    static bool canBe(std::u32string_view word);

    FShortWord(std::u32string_view word, size_t number);

    size_t number() const { return mNumber; }
    qint64 size() const { return mSize; }

    /** Start of the four characters that the search looks for; a shorter word is looked for as a whole. */
    qint64 quad() const { return mQuad; }

    /** Cost of a hit of its quad without the word itself; it grows with the number of such hits. */
    double weight() const { return mWeight; }

    /** Takes the next quad, if there is another, and a higher weight. For a word with many hits in vain. */
    void avoidOthers();

    /** Sort key: the characters from the quad on. */
    quint64 rank() const { return qbswap(mBytes >> (8 * mQuad)); }

    /** One of its characters, as a small letter and as a capital. */
    unsigned char small(qint64 index) const { return byteOf(mBytes, index); }
    unsigned char capital(qint64 index) const { return byteOf(mBytes ^ mCaseBits, index); }

    /** Whether the word is at a place, in any case. At least eight bytes must be readable there. */
    bool isAt(const char* place) const { return ((qFromLittleEndian<quint64>(place) | mCaseBits) & mMask) == mBytes; }

 private:
    static unsigned char byteOf(quint64 bytes, qint64 index) {
        return static_cast<unsigned char>(bytes >> (8 * index));
    }

    quint64 mBytes = 0;
    quint64 mMask = 0;      //!< the bytes of the word
    quint64 mCaseBits = 0;  //!< the bits in which letters differ from their capitals
    qint64 mSize;
    qint64 mQuad;
    double mWeight = 1;
    size_t mNumber;
};
