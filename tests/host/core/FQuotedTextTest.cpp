#include "host/core/FQuotedText.h"

#include <gtest/gtest.h>

#include <random>

TEST(FQuotedTextTest, backslashesOfPathsNeedNoCare) {
    EXPECT_EQ(unquoteText(uR"("C:\temp\new")"), QString(R"(C:\temp\new)"));
    EXPECT_EQ(unquoteText(uR"("a \"b\" \\")"), QString(R"(a "b" \)"));
    EXPECT_EQ(quoteText(QString(R"(C:\ "x")")), QString(R"("C:\\ \"x\"")"));
    for (const QStringView text : {u"", u"\"", u"a", u"\"a", u"a\"", u"\"a\"b\"", u"\"a\\\"", u"\"a\" "}) {
        EXPECT_FALSE(unquoteText(text)) << text.toString().toStdString();
    }
}

TEST(FQuotedTextTest, everyTextIsReadBack) {
    std::mt19937 random(1);
    const QString alphabet = QStringLiteral("\"\"\\\\\\ab\n\r\t/[B64]ü") + QChar(0xd83d) + QChar(0);
    for (int i = 0; i < 20000; ++i) {
        QString text;
        for (auto n = random() % 12; n > 0; --n) {
            text += alphabet[static_cast<int>(random() % static_cast<unsigned>(alphabet.size()))];
        }
        const QString quoted = quoteText(text);
        ASSERT_EQ(unquoteText(quoted), text) << quoted.toStdString();
        ASSERT_EQ(closingQuote(quoted + QStringLiteral("\"\\"), 0), quoted.size() - 1);
    }
}
