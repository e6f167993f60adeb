#pragma once

#include <vector>

#include "genericintegration/io/FQuadSet.h"
#include "genericintegration/io/FShortWord.h"

/** Short words that are looked for together, by one set of quads. */
struct FShortWordGroup {
    explicit FShortWordGroup(const FShortWord& word) : words{word}, quads(word), weight(word.weight()) {}

    /** At most so many groups, whose sets have few quads that are of none of the words, above all of heavy words. */
    static std::vector<FShortWordGroup> make(std::vector<FShortWord> words, size_t most);

    void remove(size_t index);

    std::vector<FShortWord> words;
    FQuadSet quads;
    double weight;   //!< that of the heaviest word
    int vainly = 0;  //!< how often a quad was met, but none of the words
};
