#include "genericintegration/templates/FTemplateTags.h"

#include <gtest/gtest.h>

#include <QChar>

#include "genericintegration/templates/FTemplateScanner.h"

using namespace FTemplateTags;

namespace {

TEST(FTemplateTagsTest, listsNamesInTheirTwoWays) {
    const QString text = "</entry><entry>x</entry><entry></entry><ENTRY>y</ENTRY><entry>X</entry><entry>x</entry>";
    EXPECT_EQ(tagNames(text), QStringList({"x", "", "y", "X", "x"}));
    EXPECT_EQ(entryNames(text), QStringList({"x", "", "X"}));
    EXPECT_EQ(entryNames("<entry>a<entry>b</entry>"), QStringList("a<entry>b"));
    EXPECT_EQ(entryNames("<entry>a\n</ENTRY><entry> </entry>"), QStringList("a\n</ENTRY><entry> "));
    EXPECT_EQ(tagNames("<entry>a</entry>b<entry>c"), QStringList("a"));
}

TEST(FTemplateTagsTest, changesWholeTagsOnly) {
    EXPECT_EQ(renameTag("<ENTRY>A</ENTRY>", "a", "b"), "<entry>b</entry>");
    EXPECT_EQ(renameTag("<entry>x1</entry> x1 <entry>x10</entry><entry>Exports|x1</entry>", "X1", "<entry>x1</entry>"),
              "<entry><entry>x1</entry></entry> x1 <entry>x10</entry><entry>Exports|x1</entry>");
    EXPECT_EQ(replaceTag("a<entry>x</entry><Entry>X</entry>b", "x", ""), "ab");
    EXPECT_TRUE(containsTag("a<ENTRY>X</entry>", "x"));
    EXPECT_FALSE(containsTag("a<entry>x</entry>", "x1"));
}

TEST(FTemplateTagsTest, scannerTellsPlaces) {
    const QString text = "ab<Entry>n</entry><entry>rest<entry>";
    FTemplateScanner scanner(text);
    const auto tag = scanner.next();
    ASSERT_TRUE(tag);
    EXPECT_EQ(text.mid(int(tag->position), int(tag->length)), "<Entry>n</entry>");
    EXPECT_EQ(tag->name, QString("n"));
    for (int again = 0; again < 2; ++again) {
        EXPECT_FALSE(scanner.next());
        EXPECT_EQ(scanner.unterminated(), 18);
    }
    FTemplateScanner strict(text, Qt::CaseSensitive);
    EXPECT_FALSE(strict.next());
    EXPECT_EQ(strict.unterminated(), 18);
}

// The scanner relies on it: no letter but the Latin ones answers to a letter of a marker.
TEST(FTemplateTagsTest, markersHaveNoForeignLetters) {
    for (uint unit = 128; unit <= 0xffff; ++unit) {
        for (const QChar letter : openingMarker) {
            ASSERT_NE(QString(QChar(unit)).compare(QString(letter), Qt::CaseInsensitive), 0) << unit;
        }
    }
}

}  // namespace
