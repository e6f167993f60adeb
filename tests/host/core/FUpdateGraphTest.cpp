#include "host/core/FImmediateUpdateBlocker.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

class FUpdateGraphTest : public FDirectTest {
 protected:
    FThing* a = FThing::create("a");
    FThing* b = FThing::create("b");
    FThing* c = FThing::create("c");
    FThing* d = FThing::create("d");
};

TEST_F(FUpdateGraphTest, aMarkReachesAllDependantsAndAnUpdateClearsIt) {
    for (FThing* side : {b, c}) {
        side->addSupplier(a);
        d->addSupplier(side);
    }
    a->setOutOfDate(true);
    EXPECT_TRUE(b->isOutOfDate() && c->isOutOfDate() && d->isOutOfDate());
    d->update();
    EXPECT_FALSE(a->isOutOfDate() || b->isOutOfDate() || c->isOutOfDate() || d->isOutOfDate());
    d->update();
    EXPECT_EQ(a->mUpdates, 1);
    EXPECT_EQ(d->mUpdates, 1);
}

TEST_F(FUpdateGraphTest, aCycleIsRefusedAndLinksAreCounted) {
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
