#include "host/script/FScriptParser.h"

#include <gtest/gtest.h>

namespace {

constexpr FParseMode recovering{.recovers = true, .isObjectArea = true};

QString repeated(const char* part, int count) {
    return QString::fromLatin1(part).repeated(count);
}

}  // namespace

TEST(FScriptParserTest, nestingOfStatementsIsBounded) {
    for (const char* part : {"if (a) {", "if (a) ", "while (a)\n", "for (a in b) { ", "if (a) b; else while (c) "}) {
        const FScript script = parseScript(repeated(part, 100000), "s");
        ASSERT_EQ(script.errors.size(), 1U);
        EXPECT_TRUE(script.errors[0].message.startsWith("nested more than 200 levels deep")) << part;
    }
    const FScript script = parseScript("if (a) b\n" + repeated("else if (a) b\n", 100000), "s");
    EXPECT_TRUE(script.errors.empty());
}

TEST(FScriptParserTest, tooLongAScriptIsRefused) {
    const QChar character('a');
    const FScript script = parseScript(QString::fromRawData(&character, longestScript + 1), "s");
    ASSERT_EQ(script.errors.size(), 1U);
    EXPECT_EQ(script.errors[0].toString("s").toStdString(),
              "s:1:1: the script has 536870913 characters and is not read: the limit is 536870912, so split it");
}

TEST(FScriptParserTest, damagedTextsCostLinearTime) {
    // Texts in which each line invites to read on to the end; quadratic work would take hours.
    const QString texts[] = {repeated("\\\"\n", 100000),
                             repeated("\\\"\n", 100000) + "(\"",
                             repeated("a(\"\n", 100000),
                             repeated("a \"\\\\\n", 100000),
                             repeated("p q(\"x) {\n", 100000),
                             repeated("a \\\"", 100000) + "\n(\"",
                             "p q() {\n" + repeated("a b \"\n", 100000),
                             repeated("(", 200000),
                             repeated("if (a)\n", 100000),
                             repeated("{\n", 100000),
                             "(\"" + repeated(" \n", 200000) + "\"",
                             repeated("\"", 100001),
                             "[" + repeated("\"a\", ", 100000)};
    for (const QString& text : texts) {
        EXPECT_FALSE(parseScript(text, "s", recovering).errors.empty());
    }
}
