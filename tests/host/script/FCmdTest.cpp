#include "host/script/FCmd.h"
#include "host/script/FMemberCmd.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

class FCmdTest : public FDirectTest {
 protected:
    FThing* a = FThing::create("a");
    FThing* b = FThing::create("b");
};

TEST_F(FCmdTest, argumentsAreConvertedOrRefused) {
    EXPECT_EQ(textOf("a.add(2, 3)"), "5");
    EXPECT_EQ(textOf("a.add(2.0)"), "3");
    const QStringList wrong{"a.add(1.5)", "a.add(\"1\")", "a.add()", "a.add(1, 2, 3)", "a.add(true)", "a.add(1e10)"};
    for (const QString& call : wrong) {
        EXPECT_EQ(textOf(call), "NULL") << call.toStdString();
    }
    EXPECT_EQ(log().size(), wrong.size());
    EXPECT_TRUE(logHolds("argument 1 (a) must be of type int"));
    EXPECT_EQ(textOf("a.which(1)"), "int");
    EXPECT_EQ(textOf("a.which(\"x\")"), "string");
    EXPECT_EQ(textOf("a.which(1.5)"), "NULL");
}

TEST_F(FCmdTest, aListActsOnItsElements) {
    run("a.setNumber(1)\nb.setNumber(2)");
    EXPECT_EQ(textOf("[a,b].getNumber()"), "[1,2]");
    EXPECT_TRUE(evaluate("[a,b].getNumber()").getObject()->castToObjectList()->isSelectionSet());
    EXPECT_EQ(textOf("[a].getNumber()"), "1");
    EXPECT_EQ(textOf("[].getNumber()"), "[]");
    EXPECT_EQ(textOf("[7,8].getNumber()"), "[]");
    EXPECT_EQ(textOf("[7].getNumber()"), "NULL");
    EXPECT_EQ(textOf("[a,7,b].getNumber()"), "[1,2]");
    EXPECT_EQ(textOf("[[7],[a],[b,a]].getNumber()"), "[1,[2,1]]");
    FExpr<FObject> numbers;
    ASSERT_TRUE(numbers.resolve("[a,[b]].getNumber()"));
    EXPECT_EQ(numbers.getObject()->toString(), "[1,2]");
    run("b.setNumber(5)");
    EXPECT_EQ(numbers.getObject()->toString(), "[1,5]");
    EXPECT_EQ(textOf("[a,b].count()"), "2");
    EXPECT_TRUE(run("[a,b].setNumber(9)"));
    EXPECT_EQ(b->getNumber(), 9);
}

TEST_F(FCmdTest, theCurrentValueOfASelectionIsTheCommonOne) {
    EXPECT_EQ(textOf("getAttribute([a,b], \"setNumber\")"), "0");
    EXPECT_EQ(textOf("getAttribute(getObjects(\"FThing\"), \"setNumber\")"), "0");
    const auto value = [](const QString& receiver) {
        const auto* prototype =
            dynamic_cast<const FAttribCmd*>(FObject::getPrototype("FAttribCmdFThingsetNumberdouble"));
        auto* command = dynamic_cast<FAttribCmd*>(prototype->clone());
        const FExprBase keep(command);
        command->setReceiver(FModelTest::evaluate(receiver));
        FExprBase found;
        command->getAttrValue(found);
        return found.toString();
    };
    EXPECT_EQ(value("[a,b]"), "0");
    a->setNumber(3);
    EXPECT_EQ(value("a"), "3");
    EXPECT_EQ(value("[a,b]"), "NULL");
    EXPECT_EQ(value("[a,1]"), "NULL");
    EXPECT_EQ(value("[]"), "NULL");
    EXPECT_EQ(value("1"), "NULL");
}

TEST_F(FCmdTest, aKeptExpressionFollowsAndOnlyAsks) {
    FExpr<FObject> sum;
    ASSERT_TRUE(sum.resolve("2*(a.getNumber()+b.getNumber())-b.add(1,-2)"));
    EXPECT_EQ(sum.toString(), "2*(a.getNumber()+b.getNumber())-b.add(1,-2)");
    EXPECT_EQ(sum.getObject()->toString(), "1");
    run("a.setNumber(10)");
    EXPECT_EQ(sum.getObject()->toString(), "21");
    a->setName("renamed");
    EXPECT_TRUE(sum.toString().startsWith("2*(renamed.getNumber()"));
    EXPECT_TRUE(sum.canSafelyBeUpdated(false));
    EXPECT_FALSE(sum.resolve("b.setNumber(1)"));
    EXPECT_FALSE(sum.resolve("print(1)"));
    EXPECT_FALSE(sum.resolve("nothing + 1"));
    EXPECT_FALSE(sum.resolve("1 +"));
    ASSERT_TRUE(sum.resolve("readText(\"x\")"));
    EXPECT_FALSE(sum.canSafelyBeUpdated(false));
    EXPECT_TRUE(sum.canSafelyBeUpdated(true));
}

TEST_F(FCmdTest, expressionTextsReadBackToTheSameTree) {
    for (const char* text :
         {"1-(2-3)", "1-2-3", "(1+2)*3", "2^3^2", "(2^3)^2", "-2^2", "(-2)^2", "-(1+2)", "!(true&&false)||true",
          "1<2==true", "[1,\"a\\\"b\\\\\",NULL]", "2*-3", "1e-07*2", "1-(-1)", "max(1,2)+3%2", "fileName(\"a\")"}) {
        FExprBase first;
        ASSERT_TRUE(first.resolve(text)) << text;
        const QString written = first.getStored()->toExpressionString();
        FExprBase second;
        ASSERT_TRUE(second.resolve(written)) << written.toStdString();
        EXPECT_EQ(second.getStored()->toExpressionString(), written);
        const FExprBase a1(first.getObject());
        const FExprBase a2(second.getObject());
        EXPECT_EQ(a1.toString(), a2.toString()) << text << " became " << written.toStdString();
        EXPECT_EQ(a1.toString(), textOf(a1.getStored()->toExpressionString())) << text << ", as a value";
    }
    EXPECT_EQ(textOf("2^3^2"), "512");
    EXPECT_EQ(textOf("-2^2"), "-4");
    EXPECT_EQ(textOf("1-2-3"), "-4");
}

}  // namespace
