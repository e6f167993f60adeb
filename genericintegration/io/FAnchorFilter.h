#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

/**
 * Passes quickly over the parts of a text in which none of some words can stand.
 *
 * It probes the text at every few bytes for a short piece of one of the words, chosen where the word is least common.
 * The words are folded; pieces are taken from their ASCII characters, and found in any case. Time is linear in the
 * text.
 */
class FAnchorFilter {
 public:
    /** Words with a shorter run of ASCII characters make poor pieces, and are better given to a filter of their own. */
    static constexpr qint64 PieceSize = 4;
    /** Bytes that a probe reads. */
    static constexpr qint64 ProbeSize = 8;

    /** Length of the longest run of ASCII characters in a word. */
    static qint64 asciiRun(std::u32string_view word);

    /** Where so many characters of an ASCII word begin that are the least common in what programs print. */
    static size_t rarestPart(std::u32string_view word, size_t size);

    /** Each word has an ASCII character. The longer the shortest run of a word, the quicker. */
    explicit FAnchorFilter(const std::vector<std::u32string>& words);

    bool isEmpty() const { return mEmpty; }

    /**
     * The place of the first probe, from an offset on, that met a piece of a word or, if wished, a byte that isn't
     * ASCII; -1 for none. A probe meets each word that begins at the offset or behind, if the ASCII characters of the
     * word are such in the text, too, and the probe needn't read over the text's end.
     */
    qint64 next(std::string_view text, qint64 offset, bool alsoNonAscii) const;

    /** A word whose piece was met begins at most so far before the probe. */
    qint64 reach() const { return mReach; }

 private:
    void add(std::u32string_view word);
    void addPiece(quint64 piece);
    template <bool AlsoNonAscii>
    qint64 nextProbe(std::string_view text, qint64 offset) const;
    bool isPiece(quint64 piece) const;

    qint64 mWidth;  //!< characters of a piece
    qint64 mStep;   //!< from one probe to the next
    qint64 mReach = 0;
    bool mEmpty;
    std::vector<quint64> mHashes;  //!< a bit for each hash, set for those of the pieces
    std::vector<quint64> mSlots;   //!< each piece at its hash or right behind, at most half of them; 0 for none
};
