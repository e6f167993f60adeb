#include "host/script/FNumberFormat.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <random>

namespace {

std::string formatted(const QString& format, const FFormatValue& value) {
    QString error;
    const auto text = formatNumber(format, value, error);
    EXPECT_EQ(text.has_value(), error.isEmpty());
    return text.value_or(error).toStdString();
}

std::string printed(const std::string& format, const FFormatValue& value) {
    char buffer[2048];
    std::string wide = format;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    if (const auto* integer = std::get_if<qint64>(&value)) {
        std::snprintf(buffer, sizeof buffer, wide.insert(wide.size() - 1, "ll").c_str(), *integer);
    } else {
        std::snprintf(buffer, sizeof buffer, format.c_str(), std::get<double>(value));
    }
#pragma GCC diagnostic pop
    return buffer;
}

}  // namespace

TEST(FNumberFormatTest, agreesWithPrintf) {
    std::setlocale(LC_NUMERIC, "C");
    std::mt19937 random(1);
    const auto pick = [&random](std::string_view from) { return from[random() % from.size()]; };
    const double doubles[] = {0.0,    -0.0,    1,    -1.5,         0.5,      2.5,       100,
                              123456, 1234567, 1e-5, 1e-4,         9.9995,   9.5e22,    1.7e308,
                              5e-324, -1e10,   0.1,  std::nan(""), INFINITY, -INFINITY, 3.14159265358979};
    const qint64 integers[] = {
        0, 1, -1, 8, 255, -4711, std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max()};
    for (int i = 0; i < 50000; ++i) {
        std::string format = "%";
        for (auto n = random() % 3; n > 0; --n) {
            format += pick("-+ #0");
        }
        if (random() % 2 == 0) {
            format += std::to_string(1 + random() % 20);
        }
        if (random() % 2 == 0) {
            format.append(".").append(std::to_string(random() % 18));
        }
        const bool isInteger = random() % 2 == 0;
        format += pick(isInteger ? "dixXo" : "eEfFgG");
        const FFormatValue value = isInteger ? FFormatValue(integers[random() % std::size(integers)])
                                             : FFormatValue(doubles[random() % std::size(doubles)]);
        // Flags that contradict each other or mean nothing for a conversion are undefined in printf.
        if (isInteger && format.find_first_of("xXo") != std::string::npos &&
            format.find_first_of("+ ") != std::string::npos) {
            continue;
        }
        if (format.find_first_of("di") != std::string::npos && format.find('#') != std::string::npos) {
            continue;
        }
        ASSERT_EQ(formatted(QString::fromStdString(format), value), printed(format, value)) << format;
    }
}

TEST(FNumberFormatTest, valuesAreConvertedWhereNothingIsLost) {
    EXPECT_EQ(formatted("F = %+.2e N, 100 %%", 1234.5), "F = +1.23e+03 N, 100 %");
    EXPECT_EQ(formatted("%05d|", 12.0), "00012|");
    EXPECT_EQ(formatted("%8.3f", qint64{2}), "   2.000");
    EXPECT_EQ(formatted("<%-6.3s>", QString("größer")), "<grö   >");
    EXPECT_EQ(formatted("%d", 1.5), "the conversion \"%d\" of a format needs a whole number, the value is 1.5");
    EXPECT_EQ(formatted("%d", 1e19), "the conversion \"%d\" of a format needs a whole number, the value is 1e+19");
    EXPECT_EQ(formatted("%f", QString("a")), "the conversion \"%f\" of a format needs a number, the value is a text");
    EXPECT_EQ(formatted("%s", 1.0), "the conversion \"%s\" of a format needs a text, the value is a number");
}

TEST(FNumberFormatTest, otherFormatsAreRefused) {
    EXPECT_EQ(formatted("%.1000f", 1e308).size(), 1310U);
    for (const char* format : {"", "100 %%", "%d %d", "%d%n", "%n", "%*d", "%ld", "%u", "%", "%5%", "%1$d", "%1001d"}) {
        QString error;
        EXPECT_FALSE(formatNumber(format, 1.0, error)) << format;
        EXPECT_TRUE(error.contains(QString("\"%1").arg(QString(format).left(2)))) << error.toStdString();
    }
    EXPECT_EQ(formatted("%2.1001f", 1.0), "the width or precision of \"%2.1001f\" is larger than 1000");
}
