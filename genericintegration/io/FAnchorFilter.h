#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

/**
 * Skips quickly the parts of a text that can't contain any of the given words.
 *
 * It probes the text every few bytes for a short piece of one of the words, chosen from the rarest part of the word.
 * The words are folded; pieces consist of their ASCII characters and match in any case. Time is linear in the text.
 */
class FAnchorFilter {
 public:
    /** Words with a shorter run of ASCII characters make poor pieces; give them a filter of their own. */
    static constexpr qint64 pieceSize = 4;
    /** Number of bytes that a probe reads. */
    static constexpr qint64 probeSize = 8;

    /** Length of the longest run of ASCII characters in a word. */
    static qint64 asciiRun(std::u32string_view word);

    /** Start of the part of an ASCII word, `size` characters long, that is rarest in the output of programs. */
    static size_t rarestPart(std::u32string_view word, size_t size);

    /** Each word must have an ASCII character. The longer the shortest run of the words, the faster the search. */
    explicit FAnchorFilter(const std::vector<std::u32string>& words);

    bool isEmpty() const { return mEmpty; }

    /**
     * Offset of the first probe, at or after an offset, that hits a piece of a word or, with alsoNonAscii, a byte that
     * isn't ASCII; -1 for none. Probes hit every word that starts at or after the offset, except one whose ASCII
     * characters aren't ASCII in the text (K as the Kelvin sign), and one so near the end of the text that a probe
     * would read beyond it.
     */
    qint64 next(std::string_view text, qint64 offset, bool alsoNonAscii) const;

    /** Maximum distance in bytes from the start of a word to the probe that hits it. */
    qint64 reach() const { return mReach; }

 private:
    void add(std::u32string_view word);
    void addPiece(quint64 piece);
    template <bool AlsoNonAscii>
    qint64 nextProbe(std::string_view text, qint64 offset) const;
    bool isPiece(quint64 piece) const;

    qint64 mWidth;  //!< number of characters of a piece
    qint64 mStep;   //!< distance between probes
    qint64 mReach = 0;
    bool mEmpty;
    std::vector<quint64> mHashes;  //!< a bit for each hash, set for the hashes of pieces
    std::vector<quint64> mSlots;   //!< hash table of the pieces with linear probing, at most half full; 0 is free
};
