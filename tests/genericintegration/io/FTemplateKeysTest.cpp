#include "genericintegration/io/FTemplateKeys.h"

#include <gtest/gtest.h>

namespace {

TEST(FTemplateKeysTest, firstRowWithAnObjectAnswers) {
    FTemplateKeys keys;
    keys.append("A[0]|x", false);
    keys.append("A[1]|x", true);
    keys.append("A[2]|x", true);
    keys.append("gone", false);
    EXPECT_EQ(keys.find(u"a|X"), 1);
    EXPECT_EQ(keys.find(u"A[1]|x"), FTemplateKeys::notFound);
    EXPECT_EQ(keys.find(u"A"), FTemplateKeys::notFound);
    EXPECT_EQ(keys.find(u"gone"), FTemplateKeys::notFound);
}

TEST(FTemplateKeysTest, cutsLevelsAtTheLastBracketAfterDroppingEmptyOnes) {
    FTemplateKeys keys;
    keys.append("Exports|out[1].txt", true);
    keys.append("||p[q][0]||r|", true);
    keys.append("[0]|s", true);
    keys.append("||", true);
    EXPECT_EQ(keys.find(u"exports|OUT"), 0);
    EXPECT_EQ(keys.find(u"p[q]|r"), 1);
    EXPECT_EQ(keys.find(u"|s"), 2);
    EXPECT_EQ(keys.find(u""), 3);
}

TEST(FTemplateKeysTest, ignoresCaseLetterByLetter) {
    FTemplateKeys keys;
    for (const char* key : {"straße", "SS", "Kelvin", "İ", "ΟΔΟΣ", "𐐀"}) {
        keys.append(QString::fromUtf8(key), true);
    }
    EXPECT_EQ(keys.find(u"STRASSE"), FTemplateKeys::notFound);
    EXPECT_EQ(keys.find(u"STRAẞE"), 0);
    EXPECT_EQ(keys.find(u"\u017fs"), 1);
    EXPECT_EQ(keys.find(u"\u212aelvin"), 2);
    EXPECT_EQ(keys.find(u"i"), FTemplateKeys::notFound);
    EXPECT_EQ(keys.find(u"οδος"), 4);
    EXPECT_EQ(keys.find(u"𐐨"), 5);
}

}  // namespace
