#include "host/script/FScriptParser.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <random>

#include "tests/host/script/FSyntaxText.h"

namespace {

constexpr FParseMode recovering{.recovers = true, .isObjectArea = true};

QString repeated(const char* part, int count) {
    return QString::fromLatin1(part).repeated(count);
}

bool isPlaceIn(const FPlace& place, const QString& text) {
    const QStringList lines = QString(text).replace("\r\n", "\n").replace('\r', '\n').split('\n');
    return place.line >= 1 && place.line <= lines.size() && place.column >= 1 &&
           place.column <= lines[place.line - 1].size() + 1;
}

}  // namespace

TEST(FScriptParserTest, anyTextIsReadToItsEnd) {
    const QStringList tokens = {"a",    "if", "else", "for",      "in",    "while", "true",        "NULL",  "1",
                                "2.",   ".5", "1e",   "\"",       "\"x\"", "\\",    "\"a\nb\"",    "(",     ")",
                                "[",    "]",  "{",    "}",        ".",     ",",     ";",           ":",     "&",
                                "=",    "==", "+",    "-",        "^",     "!",     "|",           "//",    "\n",
                                "\r\n", "\r", " ",    "p q(1) {", ".f(2)", "?",     QChar(0xdc00), QChar(0)};
    std::mt19937 random(1);
    for (int i = 0; i < 30000; ++i) {
        QString text;
        for (auto n = random() % 40; n > 0; --n)
            text += tokens[static_cast<int>(random() % static_cast<unsigned>(tokens.size()))];
        const FScript strict = parseScript(text, "s");
        const FScript whole = parseScript(text, "s", {.recovers = true, .isObjectArea = false});
        ASSERT_LE(strict.errors.size(), 1U);
        // The first error is the same, and what was read before it as well.
        ASSERT_EQ(strict.errors.empty(), whole.errors.empty()) << text.toStdString();
        if (strict.errors.empty())
            ASSERT_EQ(syntaxText(strict), syntaxText(whole));
        else
            ASSERT_EQ(strict.errors[0].toString("s"), whole.errors[0].toString("s")) << text.toStdString();
        for (const FSyntaxError& error : whole.errors)
            ASSERT_TRUE(isPlaceIn(error.place, text)) << text.toStdString() << '\n'
                                                      << error.toString("s").toStdString();
        parseExpression(text);
    }
}

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
    for (const QString& text : texts)
        EXPECT_FALSE(parseScript(text, "s", recovering).errors.empty());
}
