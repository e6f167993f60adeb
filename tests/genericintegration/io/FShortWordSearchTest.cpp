#include "genericintegration/io/FByteQuads.h"
#include "genericintegration/io/FShortWordSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

// The quad of the word changes from its end to its start, at the place where the word starts.
TEST(FShortWordSearchTest, aWordIsFoundWhereItsQuadChanges) {
    FShortWordSearch search;
    ASSERT_TRUE(search.add(U"aeiowxyz"));
    for (size_t before = 0; before < 32; ++before) {
        std::string content(before, ' ');
        for (int i = 0; i < 64; ++i) {
            content += "wxyz ";
        }
        const qint64 end = static_cast<qint64>(content.size()) + 8;
        content += "aeiowxyz" + std::string(FShortWordSearch::margin, ' ');
        EXPECT_EQ(end, search.find(content).front().begin) << before;
    }
}

TEST(FShortWordSearchTest, specialInstructionsDontChangeTheResult) {
    FByteQuads quads;
    for (size_t set = 0; set < FByteQuads::setCount; ++set) {
        quads.assign(set, FQuadSet(FShortWord(std::u32string(1 + set % 4, U'a' + char32_t(set % 3)), set)));
    }
    const std::string_view letters = "aAbBcC \n0123\xE1";
    std::mt19937 random;
    std::string content;
    while (content.size() < 20'000) {
        content += letters[random() % letters.size()];
    }
    FByteQuads::Block quick;
    FByteQuads::Block plain;
    for (qint64 offset = 0, met = 0; met >= 0; offset = met + 7) {
        met = quads.next(content, offset, 5, quick);
        ASSERT_EQ(quads.nextPlainly(content, offset, 5, plain), met);
        EXPECT_EQ(plain.places, quick.places);
        EXPECT_EQ(plain.sets, quick.sets);
    }
}
