#include "genericintegration/io/FSuspicion.h"

#include <gtest/gtest.h>

#include "genericintegration/io/FValueSearch.h"
#include "host/run/FResultText.h"

namespace {

FFoundFlags flagsOf(const QString& line, int column, const FSeparatorSettings& separators) {
    const FValueDescription value = {"value", 0, column, {}, false, 0};
    return FValueSearch({value}, separators).find(FResultText::fromString(line)).values.front().flags;
}

}  // namespace

TEST(FSuspicionTest, numbersThatWereCutOrSkippedOrTouchText) {
    const struct {
        const char* line;
        int column;
        FFoundFlags flags;
    } cases[] = {
        {"1.0D+05 2", 0, FFoundFlag::CutExponent},
        {"1.0d5", 0, FFoundFlag::CutExponent},
        {"0.5771964-104", 0, FFoundFlag::CutExponent},
        {"-1.234-5.678", 0, FFoundFlag::TouchesText},
        {"-1.234-5.678", 1, FFoundFlag::TouchesText},
        {"1.2.3", 0, FFoundFlag::TouchesText},
        {"CO2 7", 0, FFoundFlag::TouchesText},
        {"CO2 7", 1, {}},
        {"3,14 2", 0, FFoundFlag::DecimalComma},
        {"3,14 2", 1, FFoundFlag::DecimalComma},
        {"3,14 2", 2, {}},
        {"1,2,3", 1, {}},
        {"1.5,2.5", 0, {}},
        {"**** 1", 0, FFoundFlag::Stars},
        {"12***", 0, FFoundFlag::Stars},
        {"2*3", 0, {}},
        {"1 NaN -Infinity 2", 1, FFoundFlag::NanOrInf},
        {"1 information 2", 1, {}},
        {" 1.5 -2e-3 [m] 30s 5%", 3, {}},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.flags, flagsOf(row.line, row.column, {true, false, ""})) << row.line << " column " << row.column;
    }
    EXPECT_EQ(FFoundFlag::ColumnMissing | FFoundFlag::Stars, flagsOf("1 ****", 1, {true, false, ""}));
    EXPECT_EQ(FFoundFlags(FFoundFlag::Stars), flagsOf("1 ****", 1, {true, false, ""}) & suspiciousFlags);
}

TEST(FSuspicionTest, separatedColumnsThatArentNumbers) {
    const FSeparatorSettings whiteSpace = {false, true, ""};
    EXPECT_EQ(FFoundFlag::NotANumber | FFoundFlag::CutExponent, flagsOf("1.0D+05 2", 0, whiteSpace));
    EXPECT_EQ(FFoundFlag::NotANumber | FFoundFlag::DecimalComma, flagsOf("1 3,14", 1, whiteSpace));
    EXPECT_EQ(FFoundFlag::NotANumber | FFoundFlag::Stars, flagsOf("1 ****", 1, whiteSpace));
    EXPECT_EQ(FFoundFlags(FFoundFlag::NanOrInf), flagsOf("1 inf", 1, whiteSpace));
    EXPECT_EQ(FFoundFlags(), flagsOf("1.0D+05 2", 1, whiteSpace));
}
