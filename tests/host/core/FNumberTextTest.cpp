#include "host/core/FNumberText.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <utility>

TEST(FNumberTextTest, textIsShortAndPlain) {
    const std::pair<double, const char*> cases[] = {{0.1, "0.1"},
                                                    {100000, "100000"},
                                                    {999999999999999, "999999999999999"},
                                                    {1e15, "1e+15"},
                                                    {-0.0, "-0"},
                                                    {1e-7, "1e-07"},
                                                    {1.0 / 3, "0.3333333333333333"},
                                                    {std::numeric_limits<double>::max(), "1.7976931348623157e+308"},
                                                    {std::numeric_limits<double>::denorm_min(), "5e-324"},
                                                    {std::numeric_limits<double>::quiet_NaN(), "NaN"},
                                                    {std::numeric_limits<double>::infinity(), "Inf"},
                                                    {-std::numeric_limits<double>::infinity(), "-Inf"}};
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(numberText(value).toStdString(), text);
    }
}

TEST(FNumberTextTest, everyDoubleIsReadBack) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 200000; ++i) {
        const double drawn = std::bit_cast<double>(random());
        const double value = i % 2 == 0 ? drawn : std::round(std::remainder(drawn, 1e16));
        const auto read = numberFromText(numberText(value));
        ASSERT_TRUE(read) << value;
        if (std::isnan(value)) {
            EXPECT_TRUE(std::isnan(*read));
        } else {
            ASSERT_EQ(std::bit_cast<quint64>(*read), std::bit_cast<quint64>(value));
        }
    }
}

TEST(FNumberTextTest, readsWholeTextsOnly) {
    EXPECT_EQ(numberFromText(u"2."), 2.0);
    EXPECT_EQ(numberFromText(u".5"), 0.5);
    EXPECT_EQ(numberFromText(u"-Inf"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(numberFromText(u"-1e999"), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(numberFromText(u"1e-999"), 0.0);
    for (const QStringView text : {u"", u"-", u"1,5", u" 1", u"1 ", u"1e", u"0x10", u"1.2.3", u"\u0661"}) {
        EXPECT_FALSE(numberFromText(text)) << text.toString().toStdString();
    }
}
