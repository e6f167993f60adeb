#include "tests/host/script/FSyntaxText.h"

#include <gtest/gtest.h>

namespace {

std::string parsed(const QString& text, const FParseMode& mode = {}) {
    return syntaxText(parseScript(text, "s", mode));
}

std::string recovered(const QString& text) {
    return parsed(text, {.recovers = true, .isObjectArea = false});
}

}  // namespace

TEST(FStatementParserTest, statements) {
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {" \n;; // nothing\n", ""},
        {"a; b\nc", "a\nb\nc\n"},
        {"x = y == 1", "x = (y == 1)\n"},
        {"f(1,\n 2)\r\n[\r3\r]", "f(1, 2)\n[3]\n"},
        {"parameter span(12.5) // m", "parameter span(12.5){}\n"},
        {"&wing w() {}; x = 1", "&wing w(){}\nx = 1\n"},
        {"wing w(a, 1) {\n    .addEntry(\"G|span\", 10);\n\n    .b().c([1,\n2]); .d()\n}\ne",
         "wing w(a, 1){.addEntry(\"G|span\", 10);.b().c([1, 2]);.d();}\ne\n"},
        {"wing w()\n\n{ .a() } wing v()\nb", "wing w(){.a();}\nwing v(){}\nb\n"},
        {"if (a) { b; c } else if (d)\n e\nelse\n{\n f\n}\ng", "if (a){b\nc\n}else if (d){e\n}else {f\n}\ng\n"},
        {"if (a) b; c", "if (a){b\n}else {}\nc\n"},
        {"if (a) { parameter p(1)\n}\nelse { }\n", "if (a){parameter p(1){}\n}else {}\n"},
        {"while (i < 3) { i = i + 1 } print(i)", "while (i < 3){i = (i + 1)\n}\nprint(i)\n"},
        {"for (in in [1, 2])\n for (x in y.z()) f(x)\n", "for (in in [1, 2]){for (x in y.z()){f(x)\n}\n}\n"},
        {"w \"x\"", "s:1:3: expected the end of the statement, found the text \"x\"\n"},
        {"a\nb c", "a\ns:2:4: expected \"(\" after the name of the new object, found the end of the script\n"},
        {"& (", "s:1:3: expected a creator after \"&\", found \"(\"\n"},
        {"a b(1) c", "s:1:8: expected the end of the statement, found \"c\"\n"},
        {"a b(1\n}", "s:2:1: expected \")\" after the arguments, found \"}\"\n"},
        {"a b() { .c()\n d() }", "s:2:2: expected a command such as .setName(\"text\") or \"}\", found \"d\"\n"},
        {"a b() {\n.c() + 1 }", "s:2:6: expected the end of the statement, found \"+\"\n"},
        {"\na b() {\n.c()",
         "s:3:5: expected \"}\" to close the block that begins in line 2, found the end of the script\n"},
        {"while (a)\n{ b",
         "s:2:4: expected \"}\" to close the block that begins in line 2, found the end of the script\n"},
        {"if (a b", "s:1:7: expected \")\" after the condition, found \"b\"\n"},
        {"if (a)", "s:1:7: expected a statement, found the end of the script\n"},
        {"for (1", "s:1:6: expected the name of a variable, found \"1\"\n"},
        {"for (a of b)", "s:1:8: expected \"in\" after the variable, found \"of\"\n"},
        {"}", "s:1:1: expected a statement, found \"}\"\n"},
        {"curFile : in1", "s:1:9: expected the end of the statement, found \":\"\n"},
        {"a\nb(\"x)\n", "a\ns:2:3: the text that begins here has no end: expected a closing \"\n"},
        {"a(\"x)\nb()\nc(\"y\")",
         "s:1:3: a text that began in 1:3 runs over 3 lines: is its closing \" missing? "
         "(expected \")\" after the arguments in 3:4, found \"y\")\n"},
        {"x = 0,5",
         "s:1:6: expected the end of the statement, found \",\" (a number has a decimal point, as in 0.5)\n"},
        {"# a", "s:1:1: expected a value, found \"#\" (a comment begins with //)\n"},
        {"a('x')", "s:1:3: expected a value, found \"'\" (a text is between double quotes: \"text\")\n"},
        {"k += 1", "s:1:4: expected a value, found \"=\" (instead of \"k += 1\" write \"k = k + 1\")\n"},
        {"x = k[0]",
         "s:1:6: expected the end of the statement, found \"[\" (an element of a list is list.at(0), list.at(1), …)\n"},
        {"for d in [1]", "s:1:5: expected \"(\" after \"for\", as in \"for (x in list)\", found \"d\"\n"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(parsed(text), expected) << text;
    }
}

TEST(FStatementParserTest, aDamagedLineOfABlockLosesNoOther) {
    const char* const lines[] = {
        ".a(1",    ".a(\"b)", ".a(b\")",  ".a(\"b)\"",      ".a(1, \"b\", \"c)", ".a)", ".a(1))",     ".a",
        "a(1)",    "a.b(1)",  "x y",      ".a(10m)",        ".a(1) .b",          "?",   ".a([1, 2)",  ".a(\"\\\")",
        ".a(1) {", ".a(] 1)", ".a(\"//)", ".a(\"x\ny\" 1)", ".a() \"x\ny\"",     ".5",  ".a(?; .e(4)"};
    for (const char* line : lines) {
        const std::string result =
            recovered("p o(1) {\n.b(2)\n" + QString(line) + "\n.c(\"3\")\n}\np q(\"r\") {\n.d(1)\n}\n");
        for (const char* kept : {"p o(1){.b(2);", ".c(\"3\");}\n", "p q(\"r\"){.d(1);}\n", "s:"}) {
            EXPECT_NE(result.find(kept), std::string::npos) << line << "\n-> " << result;
        }
        EXPECT_EQ(result.find(".a("), std::string::npos) << result;
    }
}

TEST(FStatementParserTest, aDamagedCharacterLosesNoNeighbour) {
    const QString before =
        "parameter span(12.5)\nwing w(1, \"x\") {\n.addEntry(\"G|span\", 10)\n.setText(\"one\ntwo\");\n}\n";
    const QString damaged =
        "wing v(span, \"y\") {\n    .addEntry(\"G|chord\", 10 * span, [1, 2]);\n    .addDocu(\"a "
        "\\\"b\\\"\",AREA);\n}\n";
    const QString after = "&wing u() {}\ncomp c(u) {\n.setFiles([a, b])\n.setName(\"n\")\n}\n";
    const auto expectNeighbours = [&](const QString& text) {
        FScript script = parseScript(before + text + after, "s", {.recovers = true, .isObjectArea = false});
        script.errors.clear();
        const std::string result = syntaxText(script);
        EXPECT_TRUE(result.starts_with(parsed(before)) && result.ends_with(parsed(after)))
            << text.toStdString() << "\n-> " << result;
    };
    for (int i = 0; i + 1 < damaged.size(); ++i) {
        expectNeighbours(QString(damaged).remove(i, 1));
        for (const QChar c : QStringLiteral("\"()[]{}.,;&=+\\/ \na1?:")) {
            expectNeighbours(QString(damaged).insert(i, c));
            expectNeighbours(QString(damaged).replace(i, 1, c));
        }
    }
}

TEST(FStatementParserTest, recoveryTellsEachError) {
    EXPECT_EQ(recovered("p a(1) {\n.b(1)\np c(2) {\n.d(10m)\n.e()\n}\nf(1\np g(3)\n}\nif (1) {\n?\nh\n}\ni"),
              "p a(1){.b(1);}\np c(2){.e();}\np g(3){}\nif (1){h\n}else {}\ni\n"
              "s:3:1: expected \"}\" to close the block that begins in line 1, found \"p\"\n"
              "s:4:4: \"10m\" is no number and no name: a name begins with a letter\n"
              "s:8:1: expected \")\" after the arguments, found \"p\"\n"
              "s:9:1: expected a statement, found \"}\"\n"
              "s:11:1: expected a value, found \"?\"\n");
    const FScript script =
        parseScript(QString("?\na\n").repeated(3000), "s", {.recovers = true, .isObjectArea = false});
    EXPECT_EQ(script.statements.size(), 3000U);
    ASSERT_EQ(script.errors.size(), std::size_t{mostErrors} + 1);
    EXPECT_EQ(script.errors.back().message, QString("2000 more errors after this one"));
}
