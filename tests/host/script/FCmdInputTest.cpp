#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "tests/support/FModelTest.h"

namespace {

class FCmdInputTest : public FModelTest {};

TEST_F(FCmdInputTest, errorsTellThePlaceAndTheNearestName) {
    ASSERT_TRUE(run("thing span()"));
    const std::pair<const char*, const char*> errors[] = {
        {"\nspan.setNumbr(1)", "test:2:6: FThing has no command \"setNumbr\" (did you mean \"setNumber\"?)"},
        {"spam.setNumber(1)", "test:1:1: nothing is named \"spam\" (did you mean \"span\"?)"},
        {"thng x()", "there is no creator \"thng\" (did you mean \"thing\"?)"},
        {"prnt(1)", "there is no function \"prnt\" (did you mean \"print\"?)"},
        {"span = 1", "is an object and can't be a variable"},
        {"span.noSuch()", "FThing has no command \"noSuch\""},
        {"print(docuName)", "test:1:7: nothing is named \"docuName\" (did you mean \"DocuName\"?)"},
        {"thing a()\ndestroy(a)\nprint(a)", "test:3:7: the object \"a\" has been destroyed"},
    };
    for (const auto& [script, told] : errors) {
        EXPECT_FALSE(run(script)) << script;
        EXPECT_TRUE(log().last().contains(told)) << logText();
    }
    const std::pair<const char*, const char*> warnings[] = {
        {"span.setNumber(\"x\")", "test:1:6: setNumber: argument 1 (number) must be of type double, but is \"x\""},
        {"span.setNumber(NULL)", "must be of type double, but is NULL"},
        {"x = NULL\nx.setNumber(1)", "test:2:3: setNumber: there is no object to apply it to: \"x\" is NULL"},
        {"[].at(0).setNumber(1)", "test:1:4: at: the list has no element 0; it has 0, counted from 0"},
        {"number(\"1.5D+02\")", "test:1:1: number: the text \"1.5D+02\" isn't a number"},
        {"x = span\nx.at(0)", "test:2:3: \"x\": FThing has no command \"at\""},
        {"span.at(0).count()", "test:1:6: \"span\": FThing has no command \"at\""},
        {"x = 012", "warning: test:1:5: \"012\" is read as 12: zeros at the front have no meaning"},
        {"x = 0.1234567890123456789",
         "\"0.1234567890123456789\" is read as 0.12345678901234568: a number keeps about 16 digits"},
        {"text = readText(\"/\")\nthing t()\nt.setNumber(text)", "but is NULL. \"t\" stays unchanged"},
        {"text = readText(\"missing.inp\")", "test:1:8: readText: can't read \"missing.inp\""},
        {"thing b()\ndestroy(b)\nundo()\nb.setNumber(\"1\")", "must be of type double, but is \"1\""},
    };
    for (const auto& [script, told] : warnings) {
        EXPECT_TRUE(run(script)) << script;
        EXPECT_TRUE(log().last().contains(told)) << logText();
    }
}

TEST_F(FCmdInputTest, inStrictModeAWarningTakesItsStepBack) {
    ASSERT_TRUE(run("thing a(1)"));
    const QString before = savedModel();
    for (const char* script : {"x = [a.setNumber(2), sqrt(\"x\")]", "if (a.setNumber(2) == a) { a.setNumber(\"x\") }",
                               "for (i in [5,6]) {\n a.setNumber(i)\n if (i) {}\n}", "thing b(2) { .setNumber(\"x\") }",
                               "x = [sqrt(\"x\"), exit(0)]"}) {
        FLogMsg::setStrict(true);
        EXPECT_FALSE(run(script)) << script;
        FLogMsg::setStrict(false);
        EXPECT_TRUE(log().last().startsWith("error: test:")) << logText();
        EXPECT_TRUE(savedModel() == before) << script << savedModel().toStdString();
    }
}

TEST_F(FCmdInputTest, nothingRunsOfATextWithASyntaxError) {
    EXPECT_FALSE(run("thing a(1)\nthing b(\n"));
    EXPECT_TRUE(FObjectManager::instance()->getNames().isEmpty());
}

TEST_F(FCmdInputTest, aDeclaredNameMeansTheNewObject) {
    run("thing a(1)");
    EXPECT_TRUE(run("thing a(2)\nthing c(a.getNumber())"));
    EXPECT_EQ(textOf("a.getNumber()"), "1");
    EXPECT_EQ(textOf("a_01.getNumber()"), "2");
    EXPECT_EQ(textOf("c.getNumber()"), "2");
}

TEST_F(FCmdInputTest, controlFlowAndVariables) {
    ASSERT_TRUE(
        run("s = 0\nfor (i in [1,2,3]) {\n if (i == 2) { s = s + 10 } else { s = s + i }\n}\n"
            "while (s < 20) { s = s + 1 }\nthing a(s)\nexit(3)\nthing never()"));
    EXPECT_EQ(textOf("a.getNumber()"), "20");
    EXPECT_FALSE(FObjectManager::instance()->find("never"));
    // What isn't reached isn't evaluated.
    ASSERT_TRUE(run("x = false && nothing\nif (true || destroy(a)) {}") == false);
    ASSERT_TRUE(run("if (true || destroy(a)) {}"));
    EXPECT_TRUE(FObjectManager::instance()->find("a"));
}

TEST_F(FCmdInputTest, aLongRowIsEvaluated) {
    const QString row = QStringLiteral("1") + QStringLiteral("+1").repeated(9'000);
    EXPECT_TRUE(run("thing a(" + row + ")"));
    EXPECT_EQ(textOf("a.getNumber()"), "9001");
}

TEST_F(FCmdInputTest, aTextThatGrowsLeavesItsEarlierValuesUnchanged) {
    ASSERT_TRUE(
        run("x = \"\"\ni = 0\nwhile (i < 2000) { x = x + \"a\"\n i = i + 1 }\ny = x + \"b\"\nz = x + \"c\"\n"
            "w = y + \"d\"\nthing t()\nif (y == x + \"b\" && z == x + \"c\" && w == x + \"bd\") { t.setNumber(1) }"));
    EXPECT_EQ(textOf("t.getNumber()"), "1");
}

TEST_F(FCmdInputTest, listsAndTextsThatGrowWithoutEndAreRefused) {
    EXPECT_FALSE(run("x = [1]\nwhile (true) { x = [x] }"));
    EXPECT_TRUE(logHolds("levels deep"));
    EXPECT_FALSE(run("x = [1]\nwhile (true) { x = [x,x] }"));
    EXPECT_TRUE(logHolds("1000000 elements"));
    EXPECT_TRUE(run("x = [1]\ni = 0\nwhile (i < 300) { x = [x,i+1]\n i = i+1 }\nprint(x)"));
    EXPECT_TRUE(run("x = \"0123456789\"\nwhile (x != NULL) { x = x+x }"));
    EXPECT_TRUE(logHolds("100000000 characters"));
}

}  // namespace
