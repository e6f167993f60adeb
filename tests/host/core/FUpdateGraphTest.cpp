#include "host/core/FImmediateUpdateBlocker.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

class FUpdateGraphTest : public FModelTest {};

TEST_F(FUpdateGraphTest, aMarkReachesAllDependantsAndAnUpdateClearsIt) {
    FThing* top = FThing::create("top");
    FThing* left = FThing::create("left");
    FThing* right = FThing::create("right");
    FThing* bottom = FThing::create("bottom");
    for (FThing* side : {left, right}) {
        side->addSupplier(top);
        bottom->addSupplier(side);
    }
    top->setOutOfDate(true);
    EXPECT_TRUE(left->isOutOfDate() && right->isOutOfDate() && bottom->isOutOfDate());
    bottom->update();
    EXPECT_FALSE(top->isOutOfDate() || left->isOutOfDate() || right->isOutOfDate() || bottom->isOutOfDate());
    EXPECT_EQ(top->mUpdates, 1);
    EXPECT_EQ(bottom->mUpdates, 1);
    bottom->update();
    EXPECT_EQ(bottom->mUpdates, 1);
}

TEST_F(FUpdateGraphTest, aCycleIsRefusedAndLinksAreCounted) {
    FThing* a = FThing::create("a");
    FThing* b = FThing::create("b");
    FThing* c = FThing::create("c");
    EXPECT_TRUE(b->addSupplier(a));
    EXPECT_TRUE(c->addSupplier(b));
    EXPECT_FALSE(a->addSupplier(c));
    EXPECT_FALSE(a->addSupplier(a));
    EXPECT_TRUE(b->addSupplier(a));
    b->removeSupplier(a);
    EXPECT_TRUE(c->dependsOn(a));
    b->removeSupplier(a);
    EXPECT_FALSE(c->dependsOn(a));
}

TEST_F(FUpdateGraphTest, immediateObjectsWaitForTheBlocker) {
    FThing* a = FThing::create("a");
    FThing* b = FThing::create("b");
    b->addSupplier(a);
    b->setUpdateOnDemand(false);
    {
        const FImmediateUpdateBlocker outer;
        const FImmediateUpdateBlocker inner;
        a->setOutOfDate(true);
        a->setOutOfDate(true);
        EXPECT_EQ(b->mUpdates, 0);
    }
    EXPECT_EQ(b->mUpdates, 1);
    a->setOutOfDate(true);
    EXPECT_EQ(b->mUpdates, 2);
}

}  // namespace
