#include "tests/host/script/FSyntaxText.h"

#include <gtest/gtest.h>

namespace {

std::string parsed(const QString& text) {
    const FParsedExpression result = parseExpression(text);
    return result.error ? result.error->toString("f").toStdString() : syntaxText(result.expression);
}

QString repeated(const char* part, int count) {
    return QString::fromLatin1(part).repeated(count);
}

}  // namespace

TEST(FExpressionParserTest, expressions) {
    const std::pair<const char*, const char*> cases[] = {
        {"9223372036854775807", "9223372036854775807"},
        {"9223372036854775808", "9223372036854775808."},
        {".5", "0.5"},
        {"2.", "2."},
        {"2.e3+1e-3", "(2000. + 0.001)"},
        {"2.abs()", "(2).abs()"},
        {"2.5.abs()", "(2.5).abs()"},
        {R"("C:\dir\x" + "a\"b\\")", R"(("C:\\dir\\x" + "a\"b\\"))"},
        {"\"a\r\nb\"", "\"a\r\nb\""},
        {"[true, false, NULL, []]", "[true, false, NULL, []]"},
        {"a.b(1).c(d, [e]).f()", "a.b(1).c(d, [e]).f()"},
        {"(a + b).c()", "(a + b).c()"},
        {"größe_2", "größe_2"},
        {"a || b && c == d + e * -f^2 % 3", "(a || (b && (c == (d + (e * (-(f ^ 2)) % 3)))))"},
        {"a - b + c - d", "(a - b + c - d)"},
        {"-2^2", "(-(2 ^ 2))"},
        {"2^-1^x", "(2 ^ (-(1 ^ x)))"},
        {"!a != !!b", "((!a) != (!(!b)))"},
        {"f(\n a, // one\n b\n)\n + 1 // end", "(f(a, b) + 1)"},
        {"1 +", "f:1:4: expected a value, found the end of the script"},
        {"f(1, 2", "f:1:7: expected \")\" after the arguments, found the end of the script"},
        {"f(1\n  2)", "f:2:3: expected \")\" after the arguments, found \"2\""},
        {"(1, 2)", "f:1:3: expected \")\" after the expression, found \",\""},
        {"a.", "f:1:3: expected the name of a command after the dot, found the end of the script"},
        {"a.b", "f:1:4: expected \"(\" after the name of the command, found the end of the script"},
        {"a b", "f:1:3: expected the end of the expression, found \"b\""},
        {"", "f:1:1: expected a value, found the end of the script"},
        {"3 * 10m", "f:1:5: \"10m\" is no number and no name: a name begins with a letter"},
        {"1e400", "f:1:1: the number \"1e400\" is too large: numbers end at about 1.8e308"},
        {"a + \"b\nc", "f:1:5: the text that begins here has no end: expected a closing \""},
        {"a ? b", "f:1:3: expected the end of the expression, found \"?\""},
        {"a\a", "f:1:2: expected the end of the expression, found the character U+0007"},
        {"(\r\r\n\n ?", "f:4:2: expected a value, found \"?\""},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(parsed(text), expected) << text;
    }
}

TEST(FExpressionParserTest, depthIsBounded) {
    EXPECT_EQ(parseExpression(repeated("(", 199) + "1" + repeated(")", 199)).error, std::nullopt);
    EXPECT_EQ(parseExpression("1" + repeated("+1", 9999)).expression.height, 10000);
    EXPECT_EQ(parseExpression("a" + repeated(".b(1)", 9998)).error, std::nullopt);
    EXPECT_EQ(parseExpression("[" + repeated("1,", 200000) + "1]").error, std::nullopt);

    const std::string tooDeep = "nested more than 200 levels deep: use variables for inner parts";
    for (const char* part : {"(", "[", "-", "!", "f(", "2^", "a.b("}) {
        const std::string error = parsed(repeated(part, 100000));
        EXPECT_NE(error.find(tooDeep), std::string::npos) << error;
    }
    const std::string tooLong =
        "more than 10000 operators or commands in one expression: use variables for parts of it";
    for (const char* part : {"+1", ".b()", "||a", "*2", "-f(1+1)"}) {
        const std::string error = parsed("1" + repeated(part, 100000));
        EXPECT_NE(error.find(tooLong), std::string::npos) << error;
    }
}
