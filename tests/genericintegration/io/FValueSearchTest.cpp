#include "genericintegration/io/FValueSearch.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "genericintegration/io/FResultText.h"

namespace {

const FSeparatorSettings Numbers = {true, false, ""};
const FSeparatorSettings WhiteSpace = {false, true, ""};

FValueDescription at(int line, int column, const QString& anchor = {},
                     FAnchorOccurrence occurrence = FAnchorOccurrence::Last) {
    return {"value", line, column, {anchor, occurrence}, false, 0};
}

FValueDescription lastRows(quint32 rows, int column = 0) {
    return {"value", 0, column, {}, true, rows};
}

FFoundValue find(const QString& text, const FValueDescription& value, const FSeparatorSettings& separators = Numbers) {
    return FValueSearch({value}, separators).find(FResultText::fromString(text)).values.front();
}

std::string textOf(const QString& text, const FValueDescription& value,
                   const FSeparatorSettings& separators = Numbers) {
    return find(text, value, separators).text.toStdString();
}

std::vector<qint64> placeOf(const FFoundValue& value) {
    return {value.line, value.column, value.length};
}

}  // namespace

TEST(FValueSearchTest, linesAreCountedFromTheAnchorDownAndUp) {
    const QString text = "1\n2\n3\nForce 4 5\n6\nFORCE 7\n8\n9\n\n";
    const auto first = FAnchorOccurrence::First;
    EXPECT_EQ("7", textOf(text, at(0, 0, "force")));
    EXPECT_EQ("5", textOf(text, at(0, 1, "force", first)));
    EXPECT_EQ("6", textOf(text, at(1, 0, "force", first)));
    EXPECT_EQ("3", textOf(text, at(-1, 0, "force", first)));
    EXPECT_EQ("6", textOf(text, at(-1, 0, "force")));
    EXPECT_EQ("3", textOf(text, at(2, 0)));
    EXPECT_EQ("9", textOf(text, at(-1, 0)));
}

TEST(FValueSearchTest, upwardTheFirstLineIsNeverReached) {
    const QString text = "1\n2\n3\nforce\n";
    EXPECT_EQ("2", textOf(text, at(-2, 0, "force")));
    EXPECT_EQ(FFoundFlags(), find(text, at(-2, 0, "force")).flags);
    EXPECT_EQ("2", textOf(text, at(-9, 0, "force")));
    EXPECT_EQ(FFoundFlags(FFoundFlag::LineBeyondEnd), find(text, at(-9, 0, "force")).flags);
    EXPECT_EQ("", textOf("force 1", at(-1, 0, "force")));
}

TEST(FValueSearchTest, aBlankLineRightAboveTheAnchorIsNotCounted) {
    EXPECT_EQ("2", textOf("1\n2\n\nforce", at(-1, 0, "force")));
    EXPECT_EQ("", textOf("1\n2\n\n\nforce", at(-1, 0, "force")));
}

TEST(FValueSearchTest, upwardFromTheFirstLineCountsFromTheEndOfTheUntrimmedText) {
    EXPECT_EQ("2", textOf("force\n1\n2\n", at(-1, 0, "force")));
    EXPECT_EQ("", textOf("force\n1\n2\n \n", at(-1, 0, "force")));
    EXPECT_EQ("2", textOf("force\n1\n2\n \n", at(-2, 0, "force")));
}

TEST(FValueSearchTest, columnsOfNumbersAndOfSeparators) {
    EXPECT_EQ("1.5e3", textOf("x=1.5e3, y=-2", at(0, 0)));
    EXPECT_EQ("-2", textOf("x=1.5e3, y=-2", at(0, 1)));
    EXPECT_EQ("a", textOf("  a  b", at(0, 0), WhiteSpace));
    EXPECT_EQ("b", textOf("  a  b", at(0, 1), WhiteSpace));
    const FFoundValue between = find("a,,b", at(0, 1), {false, false, ","});
    EXPECT_EQ(FFoundFlags(FFoundFlag::NotANumber), between.flags);
    EXPECT_EQ((std::vector<qint64>{1, 3, 0}), placeOf(between));
    EXPECT_EQ("c", textOf("a b;c", at(0, 2), {false, true, ";"}));
    EXPECT_EQ("", textOf("12", at(0, std::numeric_limits<int>::max()), {false, false, ""}));
}

TEST(FValueSearchTest, anInvalidExpressionIsToldAndMatchesNothing) {
    const FValueSearch search({at(0, 0), at(0, 1)}, {false, false, "["});
    EXPECT_FALSE(search.patternError().isEmpty());
    const FFoundValues found = search.find(FResultText::fromString("7"));
    EXPECT_EQ(7, found.values[0].number);
    EXPECT_EQ(FFoundFlags(FFoundFlag::ColumnMissing), found.values[1].flags);
    EXPECT_TRUE(FValueSearch({}, {false, true, ","}).patternError().isEmpty());
    EXPECT_TRUE(FValueSearch({}, {true, true, "["}).patternError().isEmpty()) << "isn't used while numbers are found";
}

TEST(FValueSearchTest, whatIsNotFoundIsAQuietNaNWithItsReason) {
    quint64 bits = 0;
    const FFoundValue missing = find("a\n", at(3, 0));
    std::memcpy(&bits, &missing.number, sizeof bits);
    EXPECT_EQ(0x7FF8000000000000, bits);
    EXPECT_EQ(FFoundFlags(FFoundFlag::LineBeyondEnd), missing.flags);
    EXPECT_EQ((std::vector<qint64>{-1, -1, -1}), placeOf(missing));

    const FFoundValue column = find("a\n1 2\n", at(1, 2));
    EXPECT_EQ(FFoundFlags(FFoundFlag::ColumnMissing), column.flags);
    EXPECT_EQ((std::vector<qint64>{2, -1, -1}), placeOf(column));

    EXPECT_EQ(FFoundFlag::AnchorMissing | FFoundFlag::ColumnMissing, find("b", at(0, 0, "a")).flags);
    EXPECT_EQ(FFoundFlag::AnchorMissing | FFoundFlag::LineBeyondEnd, find(" \n ", at(-1, 0, "a")).flags);
    EXPECT_EQ(FFoundFlags(FFoundFlag::ColumnMissing), find("force", at(0, 0, "force")).flags) << "its line is there";
    EXPECT_EQ(FFoundFlags(FFoundFlag::NotANumber), find("1e400", at(0, 0)).flags);
}

TEST(FValueSearchTest, placesAreOfTheWholeTextInUtf16Units) {
    const QString text = QStringLiteral("\u00E4\r\n\U0001D11E \u00E4 Kr\u00C4fte:  -1.5 x\r\n");
    EXPECT_EQ((std::vector<qint64>{2, 15, 4}), placeOf(find(text, at(0, 0, QStringLiteral("kr\u00E4fte")))));
    EXPECT_EQ((std::vector<qint64>{2, 15, 4}), placeOf(find(text, at(1, 3), WhiteSpace)));
    const FFoundValues found =
        FValueSearch({at(1, 0)}, Numbers).find(FResultText::fromFile("\xEF\xBB\xBF" + text.toUtf8()));
    EXPECT_EQ((std::vector<qint64>{2, 15, 4}), placeOf(found.values.front())) << "a byte order mark isn't text";
}

TEST(FValueSearchTest, averagesOfTheLastRows) {
    const QString text = "1\n2\n\n x\n3 8\n4 9\n \n";
    EXPECT_EQ(3.5, find(text, lastRows(2)).number);
    EXPECT_EQ(FFoundFlags(), find(text, lastRows(2)).flags);
    EXPECT_EQ((std::vector<qint64>{6, 1, 1}), placeOf(find(text, lastRows(2))));
    EXPECT_EQ(3.5, find(text, lastRows(4)).number) << "of four lines, two have a number";
    EXPECT_EQ(FFoundFlags(FFoundFlag::FewerRows), find(text, lastRows(4)).flags);
    EXPECT_EQ(2.5, find(text, lastRows(4'000'000'000)).number);
    EXPECT_EQ(8.5, find(text, lastRows(6, 1)).number);
    EXPECT_TRUE(std::isnan(find(text, lastRows(0)).number));
    EXPECT_TRUE(std::isnan(find(text, lastRows(6, 2)).number));
    EXPECT_EQ("", textOf("1 2\n3", lastRows(2, 1)));
}

TEST(FValueSearchTest, rowsWishedBeyondALineFeedAtTheBeginAreCountedAnewFromTheEnd) {
    const QString text = "\n1\n2\n3";
    EXPECT_EQ(2, find(text, lastRows(3)).number);
    EXPECT_EQ(3, find(text, lastRows(4)).number);
    EXPECT_EQ(2.5, find(text, lastRows(3'000'000'002)).number);
}

TEST(FValueSearchTest, theOrderIsByAnchorThenLineColumnAndName) {
    const auto named = [](const char* name, FValueDescription value) {
        value.name = name;
        return value;
    };
    const FValueSearch search({named("e", at(0, 0, "second")), named("b", at(1, 1)), named("d", at(1, 1)),
                               named("C", at(1, 1)), named("a", at(1, 0, "nowhere")), named("f", at(2, 0, "first")),
                               named("b", at(1, 1)), named("g", at(0, 0, "\n\n"))},
                              Numbers);
    EXPECT_EQ((std::vector<int>{4, 3, 1, 6, 2, 5, 0, 7}), search.order(FResultText::fromString("first second\n\n")));
    EXPECT_EQ((std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7}), search.order(FResultText::fromString("")));
}

TEST(FValueSearchTest, valuesOfOneHugeLineCostItOnce) {
    const QByteArray text = QByteArray("12.5, abc;").repeated(2'000'000);
    std::vector<FValueDescription> values(1000);
    for (int i = 0; i < 1000; ++i)
        values[static_cast<size_t>(i)] = at(-i % 3, 1999 * (i + 1), i % 2 == 0 ? "none" : "");
    for (const FSeparatorSettings& separators : {Numbers, FSeparatorSettings{false, false, ";"}}) {
        const FFoundValues found = FValueSearch(values, separators).find(FResultText::fromFile(text));
        EXPECT_EQ(separators.findNumbers ? "12.5" : "12.5, abc", found.values[999].text.toStdString());
        EXPECT_EQ(1999'000 * 10 + 1, found.values[999].column);
    }
}

TEST(FValueSearchTest, aFileOfEmptyLinesIsNotReadAnewForEachValue) {
    const QByteArray text(4'000'000, '\n');
    std::vector<FValueDescription> values(1000);
    for (int i = 0; i < 1000; ++i)
        values[static_cast<size_t>(i)] = at(4'000 * (i - 500), 0, i % 2 == 0 ? "\n" : QString(i + 1, '\n'));
    values.push_back(lastRows(4'294'967'295));
    for (const QByteArray& end : {QByteArray(), QByteArray("7")}) {
        const FFoundValues found = FValueSearch(values, Numbers).find(FResultText::fromFile(text + end));
        EXPECT_EQ(end.isEmpty(), std::isnan(found.values.back().number));
    }
}
