#include "genericintegration/io/FSuspicion.h"
#include "genericintegration/io/FValueSearch.h"
#include "host/run/FResultText.h"

#include <gtest/gtest.h>

namespace {

FFoundFlags flagsOf(const QString& line, int column, const FSeparatorSettings& separators) {
    const FValueDescription value = {"value", 0, column, {}, false, 0};
    return FValueSearch({value}, separators).find(FResultText::fromString(line)).values.front().flags;
}

}  // namespace

TEST(FSuspicionTest, numbersThatWereCutOrSkippedOrTouchText) {
    using F = FFoundFlag;
    const struct {
        const char* line;
        int column;
        FFoundFlags flags;
    } cases[] = {
        {"1.0D+05 2", 0, F::CutExponent},
        {"1.0D+05 2", 2, F::Shifted},
        {"1.0d5", 0, F::CutExponent},
        {"1.0Q-05", 0, F::CutExponent},
        {"0.5771964-104", 0, F::CutExponent},
        {"0.5771964-104 7", 2, F::Shifted},
        {"1.E+6 2", 0, F::PointExponent},
        {"1.E+6 2", 2, F::Shifted},
        {"1.+106 2", 0, F::PointExponent},
        {"1.-6 2", 2, F::Shifted},
        {"1.5 E+06", 0, F::SpacedExponent},
        {"1.5E +06", 0, F::SpacedExponent},
        {"1.5E+ 06", 0, F::SpacedExponent},
        {"1.5D 06 3", 0, F::SpacedExponent},
        {"1.5 E+06 3", 2, F::Shifted},
        {"1.5 x 10^6 3", 0, F::SpacedExponent},
        {"1.5 x 10^6 3", 3, F::Shifted},
        {"1.5 \u00D7 10\u207B\u2076", 0, F::SpacedExponent},
        {"1.5*10**6", 0, F::SpacedExponent},
        {"T = \u22121.5", 0, F::SpacedSign},
        {"x = - 1.5", 0, F::SpacedSign},
        {"- 1.5", 0, F::SpacedSign},
        {"energy  - 1.5", 0, F::SpacedSign},
        {"12.5MPa 3", 0, F::LetterAfter},
        {"12.5MPa 3", 1, {}},
        {"12.5\u00B5m", 0, F::LetterAfter},
        {"0x1F", 0, F::LetterAfter},
        {"-1.234-5.678", 0, F::CutAtEdge},
        {"-1.234-5.678", 1, F::CutAtEdge},
        {"123.4567890.123", 0, F::CutAtEdge},
        {"1.2.3", 0, F::CutAtEdge},
        {"CO2 7", 0, F::LetterBefore},
        {"CO2 7", 1, {}},
        {"3,14 2", 0, F::DecimalComma},
        {"3,14 2", 1, F::DecimalComma | F::Shifted},
        {"3,14 2", 2, F::Shifted},
        {"1,234.5 2", 0, F::ThousandsSeparator},
        {"1,234.5 2", 2, F::Shifted},
        {"x=-1,234,567", 0, F::ThousandsSeparator},
        {"1.234,5", 0, F::ThousandsSeparator},
        {"1'234.5", 0, F::ThousandsSeparator},
        {"**** 1", 0, F::Stars | F::Shifted},
        {"p = ****  T = 3.5", 0, F::Stars | F::Shifted},
        {"1.5 ****** 3", 1, F::Stars | F::Shifted},
        {"12***", 0, F::Stars},
        {"1 NaN -Infinity 2", 1, F::NanOrInf | F::Shifted},
        {"1.#QNAN 2", 0, F::NanOrInf},
        {"1 ****", 1, F::ColumnMissing | F::Stars},
        {"1 nan", 1, F::ColumnMissing | F::NanOrInf},
    };
    for (const auto& row : cases) {
        const QString line = QString::fromUtf8(row.line);
        EXPECT_EQ(row.flags, flagsOf(line, row.column, {true, false, ""})) << row.line << " column " << row.column;
    }
}

TEST(FSuspicionTest, ordinaryLinesAreNotSuspicious) {
    const struct {
        const char* line;
        QList<int> columns;
    } cases[] = {
        {"1 -2 +3.5 .5 6. 7.5e3 8.5E-03 1.e3x", {0, 1, 2, 3, 4, 5, 6}},
        {"1,2,3", {0, 1, 2}},
        {"1.,-2. 1.-2.", {0, 1, 2}},
        {"0.123,5 1.23,4 5'30 1 x 100 3 \u2212 2", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        {"1.5,2.5\t3.5;4.5", {0, 1, 2, 3}},
        {"(1,2) [3,4] x=5 y:-6 <7>", {0, 1, 2, 3, 4, 5, 6}},
        {"  1   0.10000E+01  -0.2000E-02", {0, 1, 2}},
        {"***** ITERATION 5 *****", {0}},
        {"** 12 nodes", {}},
        {"*** WARNING *** 3 elements", {0}},
        {"*******************************************", {}},
        {"[INF] 12 messages", {0}},
        {"INF: 12 messages", {0}},
        {"information 12, infinite 3, nano 4", {0, 1, 2}},
        {"2*3 4**5", {0, 1}},
        {"10 - 20", {0, 1}},
        {"- 12 nodes", {0}},
        {"-- 1.5 --", {0}},
        {"a - b 1.5", {0}},
        {"12:30:45 5% $7 #8 1/2", {0, 1, 2, 3, 4, 5, 6, 7}},
        {"step 3 e = 1.5 d = 2", {0, 1, 2}},
    };
    for (const auto& row : cases) {
        for (const int column : row.columns) {
            EXPECT_EQ(FFoundFlags(), flagsOf(row.line, column, {true, false, ""})) << row.line << " column " << column;
        }
    }
}

TEST(FSuspicionTest, commasUnderAHeadWithCommasSeparate) {
    const auto flagsAt = [](const char* text, qint64 begin) {
        return FSuspicion::ofNumber(text, {begin, begin + 1}, begin);
    };
    EXPECT_EQ(flagsAt("x,y\n3,4\n1,2\n", 8), FFoundFlags());
    EXPECT_EQ(flagsAt("x,y\n3,4\n1,234.5\n", 8), FFoundFlags());
    EXPECT_EQ(flagsAt("t [s], p [Pa]\n1,2\n", 14), FFoundFlags(FFoundFlag::DecimalComma));
    EXPECT_EQ(flagsAt("x,y\n1,2 7\n", 4), FFoundFlags(FFoundFlag::DecimalComma));
    EXPECT_EQ(flagsAt("3,4\n1,2\n", 4), FFoundFlags(FFoundFlag::DecimalComma));
}

TEST(FSuspicionTest, separatedColumns) {
    using F = FFoundFlag;
    const FSeparatorSettings whiteSpace = {false, true, ""};
    const struct {
        const char* line;
        int column;
        FSeparatorSettings separators;
        FFoundFlags flags;
    } cases[] = {
        {"1.0D+05 2", 0, whiteSpace, F::NotANumber | F::CutExponent},
        {"1 3,14", 1, whiteSpace, F::NotANumber | F::DecimalComma},
        {"1 ****", 1, whiteSpace, F::NotANumber | F::Stars},
        {"1 inf", 1, whiteSpace, F::NanOrInf},
        {"1.0D+05 2", 1, whiteSpace, {}},
        {"1.5 E+06", 0, whiteSpace, F::SpacedExponent},
        {"x - 1.5", 2, whiteSpace, F::SpacedSign},
        {"1.234-5.678 9", 1, whiteSpace, F::Shifted},
        {"12.5**** 9", 1, whiteSpace, F::Shifted},
        {"2024-01-15 -2.5e-3 9", 2, whiteSpace, {}},
        {"a,,b", 1, {false, false, ","}, F::NotANumber},
        {"2024-01-15,1.5", 1, {false, false, ","}, {}},
        {"12345678", 0, {false, false, "5"}, F::CutAtEdge},
        {"1x2", 0, {false, false, "("}, F::NotANumber | F::LetterAfter | F::SeparatorInvalid},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.flags, flagsOf(row.line, row.column, row.separators)) << row.line << " column " << row.column;
    }
}

TEST(FSuspicionTest, filesOfAnotherKind) {
    const FSeparatorSettings numbers = {true, false, ""};
    EXPECT_EQ(FFoundFlags(FFoundFlag::OnlyCarriageReturns), flagsOf("1 2\r3 4\r", 0, numbers));
    EXPECT_EQ(FFoundFlags(), flagsOf("1 2\r\n3 4\r\n", 0, numbers));
    const QByteArray bytes("1\0002\000.\0005\000\n\000", 10);
    const FValueDescription value = {"value", 0, 0, {}, false, 0};
    EXPECT_TRUE(FValueSearch({value}, numbers)
                    .find(FResultText::fromFile(bytes))
                    .values.front()
                    .flags.testFlag(FFoundFlag::ZeroBytes));
}
