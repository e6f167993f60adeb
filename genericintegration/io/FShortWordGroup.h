#pragma once

#include "genericintegration/io/FQuadSet.h"
#include "genericintegration/io/FShortWord.h"

#include <vector>

/** Short words that are searched together, by one set of quads. */
struct FShortWordGroup {
    explicit FShortWordGroup(const FShortWord& word) : words{word}, quads(word), weight(word.weight()) {}

    /** Makes at most this number of groups. Their sets contain few quads that belong to no word, above all for words of
     * high weight. */
    static std::vector<FShortWordGroup> make(std::vector<FShortWord> words, size_t maxGroups);

    /** Removes a word by its index in the group. */
    void remove(size_t index);

    std::vector<FShortWord> words;
    FQuadSet quads;
    double weight;   //!< the highest weight of its words
    int vainly = 0;  //!< number of hits of a quad without any of the words
};
