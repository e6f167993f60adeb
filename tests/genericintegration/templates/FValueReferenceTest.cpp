#include "genericintegration/templates/FGenIntResultsFile.h"
#include "genericintegration/templates/FValueReference.h"
#include "host/design/FParameter.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

using FValueReferenceTest = FIntegrationTest;

// By their texts, a renamed value is followed.
TEST_F(FValueReferenceTest, parametersHoldIt) {
    auto* square = object<FGenIntResultsFile>("square");
    square->setFileName("sub/a \"b\".txt");
    for (const QString& name : {QString("f"), QString("a \"b\" c")}) {
        square->setCurValue(square->getValue("f"));
        square->getCurValue()->mName = name;
        const FExpr<FParameter> parameter = square->createParam(name, "comp", false);
        ASSERT_TRUE(parameter) << name.toStdString();
        EXPECT_EQ(parameter->getValue().toString(nullptr), (FValueReference{"comp", "sub/a \"b\".txt", name}.text()));
        square->getCurValue()->mName = "f";
    }
}

}  // namespace
