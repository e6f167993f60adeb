#include "host/core/FHistory.h"
#include "host/design/FCurve.h"
#include "host/design/FEntityGroup.h"
#include "host/design/FFeatureMember.h"
#include "host/design/FPoint.h"
#include "tests/support/FModelTest.h"

namespace {

class FFeatureDefinitionTest : public FModelTest {};

TEST_F(FFeatureDefinitionTest, geometryIsDrawableAndSaved) {
    ASSERT_TRUE(run("point p(1,2.5)\np.setZ(-3)\ncurve c(\"edge.csv\")\ntriangles t(\"hull.stl\")\nentityGroup g()"));
    for (const char* name : {"p", "c", "t"}) {
        EXPECT_TRUE(object<FEntity>(name)->isDrawable()) << name;
    }
    EXPECT_FALSE(object<FEntity>("g")->isDrawable());
    const QString text = savedModel();
    clear();
    ASSERT_TRUE(run(text)) << logText();
    EXPECT_EQ(savedModel().toStdString(), text.toStdString());
    const auto* p = object<FPoint>("p");
    EXPECT_EQ((QList<double>{p->getX(), p->getY(), p->getZ()}), (QList<double>{1, 2.5, -3}));
    EXPECT_EQ(object<FCurve>("c")->getFileName(), "edge.csv");
}

TEST_F(FFeatureDefinitionTest, aMemberNamesAnEntityOfItsFeature) {
    ASSERT_TRUE(
        run("curve a(\"a\")\ncurve b(\"b\")\nfeatureDefinition f() { .setEntities([a,NULL,b,a]) }\n"
            "featureMember m() { .setFeature(f); .setIndex(1) }"));
    EXPECT_EQ(textOf("m.getEntity()"), "b");
    ASSERT_TRUE(run("destroy(a)"));
    EXPECT_FALSE(evaluate("m.getEntity()").isValid());
    FHistory::instance()->undo();
    EXPECT_EQ(textOf("m.getEntity()"), "b");
}

TEST_F(FFeatureDefinitionTest, nothingHoldsItself) {
    ASSERT_TRUE(run("point p()\nentityGroup g()\nentityGroup h() { .setEntities([g]) }\ng.setEntities([h,p])"));
    EXPECT_EQ(object<FEntityGroup>("g")->getEntities().size(), 1);
    EXPECT_TRUE(logHolds("g would depend on itself with h")) << logText();
    run("featureDefinition f()\nfeatureMember m() { .setFeature(f) }\nf.setEntities([m])");
    EXPECT_TRUE(logHolds("f would depend on itself with m")) << logText();
}

}  // namespace
