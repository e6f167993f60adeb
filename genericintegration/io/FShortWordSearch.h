#pragma once

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FShortWord.h"

#include <string_view>
#include <vector>

/**
 * Finds the first and the last occurrence of a few short words, for which FAnchorFilter would have to probe a text at
 * nearly every byte. Ignores case, and compares only the ASCII characters of the text.
 *
 * A word that was found often is then searched from the end of the text. Time is linear in the text, whatever it
 * contains, and far less if all words are common.
 */
class FShortWordSearch {
 public:
    static constexpr size_t mostWords = 64;

    /** A word that starts this number of bytes or fewer before the end of the text may be missed. */
    static constexpr qint64 margin = 64;

    /** Adds a folded word. Returns false if it isn't short or there are too many words. */
    bool add(std::u32string_view word);

    /** The ends of the first and the last occurrence of each word, in the order of adding; -1 for none. */
    std::vector<FByteRange> find(std::string_view text) const;

 private:
    std::vector<FShortWord> mWords;
};
