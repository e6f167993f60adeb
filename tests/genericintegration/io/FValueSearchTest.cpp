#include "genericintegration/io/FValueSearch.h"
#include "host/run/FResultText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

const FSeparatorSettings numberColumns = {true, false, ""};

FValueDescription at(int line, int column, const QString& anchor = {}) {
    return {"value", line, column, {anchor, FAnchorOccurrence::Last}, false, 0};
}

FValueDescription lastRows(quint32 rows) {
    return {"value", 0, 0, {}, true, rows};
}

FFoundValue find(const QString& text, const FValueDescription& value,
                 const FSeparatorSettings& separators = numberColumns) {
    return FValueSearch({value}, separators).find(FResultText::fromString(text)).values.front();
}

std::vector<qint64> placeOf(const FFoundValue& value) {
    return {value.line, value.column};
}

}  // namespace

TEST(FValueSearchTest, aValueThatIsntFoundHasAReason) {
    const FFoundValue missing = find("a\n", at(3, 0));
    EXPECT_TRUE(std::isnan(missing.number));
    EXPECT_EQ(FFoundFlags(FFoundFlag::LineBeyondEnd), missing.flags);
    EXPECT_EQ((std::vector<qint64>{-1, -1}), placeOf(missing));

    const FFoundValue column = find("a\n1 2\n", at(1, 2));
    EXPECT_EQ(FFoundFlags(FFoundFlag::ColumnMissing), column.flags);
    EXPECT_EQ((std::vector<qint64>{2, -1}), placeOf(column));

    EXPECT_EQ(FFoundFlag::AnchorMissing | FFoundFlag::ColumnMissing, find("b", at(0, 0, "a")).flags);
    EXPECT_EQ(FFoundFlag::AnchorMissing | FFoundFlag::LineBeyondEnd, find(" \n ", at(-1, 0, "a")).flags);
    EXPECT_EQ(FFoundFlags(FFoundFlag::ColumnMissing), find("force", at(0, 0, "force")).flags) << "its line is there";
    EXPECT_EQ(FFoundFlags(FFoundFlag::NotANumber), find("1e400", at(0, 0)).flags);
    const FFoundValue fromBottom = find("TOTAL 1\n2\n3\n", at(-1, 0, "TOTAL"));
    EXPECT_EQ(FFoundFlags(FFoundFlag::LineBeyondEnd), fromBottom.flags) << "no line is above the anchor";
    EXPECT_EQ(3, fromBottom.number);
    EXPECT_EQ(FFoundFlags(), find("1\n2\nTOTAL\n", at(-1, 0, "TOTAL")).flags);
}

TEST(FValueSearchTest, aHugeLineIsReadOnceForAllItsValues) {
    const QByteArray text = QByteArray("12.5, abc;").repeated(2'000'000);
    std::vector<FValueDescription> values(1000);
    for (int i = 0; i < 1000; ++i) {
        values[static_cast<size_t>(i)] = at(-i % 3, 1999 * (i + 1), i % 2 == 0 ? "none" : "");
    }
    for (const FSeparatorSettings& separators : {numberColumns, FSeparatorSettings{false, false, ";"}}) {
        const FResultText file = FResultText::fromFile(text);
        const FFoundValues found = FValueSearch(values, separators).find(file);
        EXPECT_EQ(separators.findNumbers ? "12.5" : "12.5, abc", found.values[999].textIn(file).toStdString());
        EXPECT_EQ(1999'000 * 10 + 1, found.values[999].column);
    }
}

TEST(FValueSearchTest, aFileOfEmptyLinesIsNotReadAgainForEachValue) {
    const QByteArray text(4'000'000, '\n');
    std::vector<FValueDescription> values(1000);
    for (int i = 0; i < 1000; ++i) {
        values[static_cast<size_t>(i)] = at(4'000 * (i - 500), 0, i % 2 == 0 ? "\n" : QString(i + 1, '\n'));
    }
    values.push_back(lastRows(4'294'967'295));
    for (const QByteArray& end : {QByteArray(), QByteArray("7")}) {
        const FFoundValues found = FValueSearch(values, numberColumns).find(FResultText::fromFile(text + end));
        EXPECT_EQ(end.isEmpty(), std::isnan(found.values.back().number));
    }
}
