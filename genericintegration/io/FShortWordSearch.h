#pragma once

#include <string_view>
#include <vector>

#include "genericintegration/io/FByteRange.h"
#include "genericintegration/io/FShortWord.h"

/**
 * Finds the first and the last occurrence of a few short words, for which FAnchorFilter would have to probe a text at
 * nearly every byte. Case is ignored; of the text, only ASCII characters are compared.
 *
 * A word that is often found is looked for no longer, but from the text's end. Time is linear in the text, whatever
 * stands in it; if all words are common, it is far less.
 */
class FShortWordSearch {
 public:
    static constexpr size_t MostWords = 64;

    /** A word that begins so many bytes before the text's end, or less, may be missed. */
    static constexpr qint64 Margin = 64;

    /** Adds a folded word; false if it isn't short or there are too many. */
    bool add(std::u32string_view word);

    /** By the order in which they were added, the ends of each word's first and last occurrence; -1 for none. */
    std::vector<FByteRange> find(std::string_view text) const;

 private:
    std::vector<FShortWord> mWords;
};
