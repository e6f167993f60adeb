#include "host/run/FTextIndex.h"
#include "host/run/FUtf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace {

std::string makeText(std::mt19937& random, int characters) {
    static const char* const pieces[] = {"a", "7", " ", "\n", "\u00B5", "\u20AC", "\U0001F600", "\n"};
    // Some texts are ASCII, some have long lines.
    const unsigned int kinds = random() % 2 == 0 ? 4 : 8;
    const unsigned int rarity = 1 + random() % 200;
    std::string text;
    for (int i = 0; i < characters; ++i) {
        text += random() % rarity == 0 ? pieces[random() % kinds] : "x";
    }
    return text;
}

}  // namespace

TEST(FTextIndexTest, anIndexMadeInStepsOfAGrowingTextEqualsTheWholeOne) {
    std::mt19937 random(7);
    for (int round = 0; round < 30; ++round) {
        const std::string text = makeText(random, static_cast<int>(random() % 20000));
        const FTextIndex whole(text);
        FTextIndex index;
        for (std::size_t size = 0; size < text.size(); size = std::min(text.size(), size + random() % 5000)) {
            const std::string part = text.substr(0, size);  // at another place in memory each time
            while (!index.extend(part, static_cast<qint64>(random() % 4000))) {
            }
            EXPECT_EQ(index.lineFeeds(), std::count(part.begin(), part.end(), '\n'));
        }
        index.extend(text, 1 << 20);
        for (int query = 0; query < 100; ++query) {
            const auto offset = static_cast<qint64>(random() % (text.size() + 1));
            EXPECT_EQ(index.lineAt(offset), whole.lineAt(offset));
            EXPECT_EQ(index.lineBegin(offset), whole.lineBegin(offset));
            EXPECT_EQ(index.utf16At(offset), FUtf8::utf16Length(std::string_view(text).substr(0, offset)));
        }
    }
}

TEST(FTextIndexTest, aUtf16UnitIsInsideTheCharacterAtItsOffset) {
    std::mt19937 random(8);
    const std::string text = makeText(random, 9000) + "\U0001F600\u00B5";
    const FTextIndex index(text);
    qint64 unit = 0;
    for (qint64 offset = 0; offset < static_cast<qint64>(text.size());) {
        const qint64 begin = offset;
        const qint64 units = QChar::requiresSurrogates(FUtf8::next(text, offset)) ? 2 : 1;
        for (const qint64 end = unit + units; unit < end; ++unit) {
            ASSERT_EQ(index.offsetOfUtf16(unit), begin) << unit;
        }
    }
    EXPECT_EQ(index.offsetOfUtf16(unit + 5), static_cast<qint64>(text.size()));
}
