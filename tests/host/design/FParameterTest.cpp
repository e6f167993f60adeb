#include "host/core/FNumber.h"
#include "host/design/FParameter.h"
#include "tests/support/FModelTest.h"

namespace {

class FParameterTest : public FDirectTest {};

/** p0 = 1, and each further one is the one before and 1. */
std::vector<FExpr<FParameter>> chain(int length) {
    std::vector<FExpr<FParameter>> parameters{FExpr<FParameter>(FParameter::create({}, "p0", new FDouble(1)))};
    for (int i = 1; i < length; ++i) {
        FExprBase sum;
        sum.resolve(QStringLiteral("p%1+1").arg(i - 1));
        parameters.emplace_back(FParameter::create({}, QStringLiteral("p%1").arg(i), sum));
    }
    return parameters;
}

TEST_F(FParameterTest, followsWhatItNames) {
    ASSERT_TRUE(run("parameter a(2)\nparameter b(3*a)\nparameter none()"));
    EXPECT_EQ(textOf("b.getValue()"), "6");
    ASSERT_TRUE(run("a.setValue(5)"));
    EXPECT_EQ(textOf("b+1"), "16");
    EXPECT_FALSE(evaluate("none.getValue()").isValid());
    ASSERT_TRUE(run("b.setValue(1)\nb.setValue(NULL)\nb.setValue(a)"));
    EXPECT_EQ(textOf("b.getValue()"), "5");
    run("destroy(a)");
    EXPECT_FALSE(evaluate("b.getValue()").isValid()) << "a value that is gone counts as none";
}

TEST_F(FParameterTest, aCycleIsRefusedAndTheValueStays) {
    run("parameter a(2)\nparameter b(3*a)\nparameter c(a+b)");
    for (const char* text : {"c", "2*c", "b", "a+1", "max(1,c)"}) {
        FExprBase value;
        ASSERT_TRUE(value.resolve(QString::fromLatin1(text)));
        EXPECT_FALSE(dynamic_cast<FParameter*>(evaluate("a").getObject())->setValue(value)) << text;
    }
    run("r = a.setValue(c)\nif (r == NULL) { a.setValue(4) }");
    EXPECT_TRUE(logHolds("test:1:7: setValue: a would depend on itself if it were c. Its value stays 2"));
    EXPECT_EQ(textOf("c.getValue()"), "16");
}

TEST_F(FParameterTest, aLongChainNeedsNoStack) {
    constexpr int length = 100'000;
    std::vector<FExpr<FParameter>> parameters = chain(length);
    FParameter& last = *parameters.back().ptr();
    EXPECT_EQ(last.getValueObject()->toString(), QString::number(length));
    parameters.front()->setValue(FExprBase(new FDouble(11)));
    EXPECT_EQ(last.getValueObject()->toString(), QString::number(length + 10));
    EXPECT_TRUE(last.canSafelyBeUpdated(false));
    EXPECT_FALSE(parameters.front()->setValue(FExprBase(&last)));
    for (auto parameter = parameters.rbegin(); parameter != parameters.rend(); ++parameter) {
        FManaged::destroy(parameter->ptr(), false);
    }
    // Each is kept by the expression of the next one only: they go one with the other.
    parameters.erase(parameters.begin(), parameters.end() - 1);
    parameters.clear();
}

TEST_F(FParameterTest, sharedOperandsAreVisitedOnce) {
    run("parameter p0(1)\nparameter q0(5)");
    for (int i = 1; i <= 60; ++i) {
        ASSERT_TRUE(run(QStringLiteral("parameter p%1(p%2+q%2)\nparameter q%1(p%2-q%2)").arg(i).arg(i - 1)));
    }
    run("p0.setValue(3)");
    EXPECT_EQ(textOf("p60.getValue()"), "3221225472");
    EXPECT_TRUE(evaluate("p60").canSafelyBeUpdated(false));
}

}  // namespace
