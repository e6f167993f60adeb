#pragma once

#include <QtEndian>

#include <string_view>

/** A folded word of a few ASCII characters, as eight bytes of a text are compared with it at once. */
class FShortWord {
 public:
    static constexpr size_t Longest = 8;
    static constexpr size_t QuadSize = 4;

    static bool canBe(std::u32string_view word);

    FShortWord(std::u32string_view word, size_t number);

    size_t number() const { return mNumber; }
    qint64 size() const { return mSize; }

    /** Where the four characters begin by which the word is looked for; of a shorter one, all that it has. */
    qint64 quad() const { return mQuad; }

    /** How bad it would be to meet the quad of another word instead: the more often that happened, the worse. */
    double weight() const { return mWeight; }

    /** When much else was met: takes the next quad, if there is another, and more weight. */
    void avoidOthers();

    /** Ascending by the characters from the quad on. */
    quint64 rank() const { return qbswap(mBytes >> (8 * mQuad)); }

    /** One of its characters, as a small letter and as a capital. */
    unsigned char small(qint64 index) const { return byteOf(mBytes, index); }
    unsigned char capital(qint64 index) const { return byteOf(mBytes ^ mCaseBits, index); }

    /** Whether the word, in any case, stands at a place, which at least eight bytes stand at. */
    bool isAt(const char* place) const { return ((qFromLittleEndian<quint64>(place) | mCaseBits) & mMask) == mBytes; }

 private:
    static unsigned char byteOf(quint64 bytes, qint64 index) {
        return static_cast<unsigned char>(bytes >> (8 * index));
    }

    quint64 mBytes = 0;
    quint64 mMask = 0;      //!< of the word's bytes
    quint64 mCaseBits = 0;  //!< which capitals lack
    qint64 mSize;
    qint64 mQuad;
    double mWeight = 1;
    size_t mNumber;
};
