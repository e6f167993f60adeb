#include "genericintegration/io/FShortWordSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "genericintegration/io/FByteQuads.h"

namespace {

class FShortWordSearchTest : public testing::Test {
 protected:
    size_t below(size_t count) { return mRandom() % count; }

    std::string text(size_t size, const std::string& letters) {
        std::string text;
        while (text.size() < size)
            text += letters[below(letters.size())];
        return text;
    }

    std::mt19937 mRandom;
};

std::string small(std::string text) {
    std::for_each(text.begin(), text.end(),
                  [](char& c) { c = c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return text;
}

qint64 endOf(size_t begin, const std::string& word) {
    return begin == std::string::npos ? -1 : static_cast<qint64>(begin + word.size());
}

}  // namespace

// Common and rare words, and so many that are met nearly, that they are regrouped on the way.
TEST_F(FShortWordSearchTest, findsWhatAStringFinds) {
    const std::string alphabets[] = {"aAbB", "abc \n", "0123456789 ", "@`[{kK\x7F\x5F", "aaaaaaaaaaab\xC3"};
    for (size_t round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const std::string letters = alphabets[round % std::size(alphabets)];
        std::string content = text(below(3) * 2000 + below(200), letters);
        FShortWordSearch search;
        std::vector<std::string> words;
        for (size_t count = 1 + below(round % 2 == 0 ? 80 : 6); count > 0; --count) {
            const std::string word = small(text(1 + below(9), letters));
            const bool canBe = word.size() <= 8 && word.find('\xC3') == std::string::npos && words.size() < 64;
            ASSERT_EQ(canBe, search.add(std::u32string(word.begin(), word.end())));
            if (!canBe)
                continue;
            words.push_back(word);
            if (below(2) == 0)
                content.insert(below(content.size() + 1), word);
        }
        content += std::string(FShortWordSearch::Margin, '\0');
        const std::vector<FByteRange> ends = search.find(content);
        const std::string folded = small(content);
        for (size_t i = 0; i < words.size(); ++i) {
            EXPECT_EQ(endOf(folded.find(words[i]), words[i]), ends[i].begin) << words[i];
            EXPECT_EQ(endOf(folded.rfind(words[i]), words[i]), ends[i].end) << words[i];
        }
    }
}

// What it is looked for by changes where it begins, from its end to its begin.
TEST_F(FShortWordSearchTest, aWordIsFoundWhereItsQuadChanges) {
    FShortWordSearch search;
    ASSERT_TRUE(search.add(U"aeiowxyz"));
    for (size_t before = 0; before < 32; ++before) {
        std::string content(before, ' ');
        for (int i = 0; i < 64; ++i)
            content += "wxyz ";
        const qint64 end = static_cast<qint64>(content.size()) + 8;
        content += "aeiowxyz" + std::string(FShortWordSearch::Margin, ' ');
        EXPECT_EQ(end, search.find(content).front().begin) << before;
    }
}

TEST_F(FShortWordSearchTest, theProcessorsHelpChangesNothing) {
    FByteQuads quads;
    for (size_t set = 0; set < FByteQuads::SetCount; ++set)
        quads.assign(set, FQuadSet(FShortWord(std::u32string(1 + set % 4, U'a' + char32_t(set % 3)), set)));
    const std::string content = text(20'000, "aAbBcC \n0123\xE1");
    FByteQuads::Block quick;
    FByteQuads::Block plain;
    for (qint64 offset = 0, met = 0; met >= 0; offset = met + 7) {
        met = quads.next(content, offset, 5, quick);
        ASSERT_EQ(quads.nextPlainly(content, offset, 5, plain), met);
        EXPECT_EQ(plain.places, quick.places);
        EXPECT_EQ(plain.sets, quick.sets);
    }
}
