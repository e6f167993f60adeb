#include "host/core/FObjectManager.h"
#include "tests/support/FModelTest.h"

namespace {

class FCmdInputTest : public FModelTest {};

TEST_F(FCmdInputTest, errorsTellThePlaceAndTheNearestName) {
    EXPECT_FALSE(run("thing span()\nspan.setNumbr(1)"));
    EXPECT_TRUE(logHolds("test:2:6: FThing has no command \"setNumbr\" (did you mean \"setNumber\"?)"));
    EXPECT_FALSE(run("spam.setNumber(1)"));
    EXPECT_TRUE(logHolds("test:1:1: nothing is named \"spam\" (did you mean \"span\"?)"));
    EXPECT_FALSE(run("thng x()"));
    EXPECT_TRUE(logHolds("there is no creator \"thng\" (did you mean \"thing\"?)"));
    EXPECT_FALSE(run("prnt(1)"));
    EXPECT_TRUE(logHolds("there is no function \"prnt\" (did you mean \"print\"?)"));
    EXPECT_FALSE(run("span = 1"));
    EXPECT_TRUE(logHolds("is an object and can't be a variable"));
    EXPECT_TRUE(run("span.setNumber(\"x\")"));
    EXPECT_TRUE(logHolds("test:1:6: setNumber: argument 1 (number) must be of type double, but is \"x\""));
    EXPECT_TRUE(run("span.setNumber(NULL)"));
    EXPECT_TRUE(logHolds("must be of type double, but is NULL"));
    EXPECT_TRUE(run("text = readText(\"missing.inp\")"));
    EXPECT_TRUE(logHolds("test:1:8: readText: can't read \"missing.inp\""));
    EXPECT_FALSE(run("x = NULL\nx.setNumber(1)"));
    EXPECT_TRUE(logHolds("test:2:3: setNumber: there is no object to apply it to"));
}

TEST_F(FCmdInputTest, aDestroyedObjectIsCalledSo) {
    EXPECT_FALSE(run("thing a()\ndestroy(a)\nprint(a)"));
    EXPECT_TRUE(logHolds("test:3:7: the object \"a\" has been destroyed"));
    EXPECT_TRUE(run("thing a()\ndestroy(a)\nundo()\na.setNumber(\"1\")"));
    EXPECT_TRUE(logHolds("must be of type double, but is \"1\""));
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
