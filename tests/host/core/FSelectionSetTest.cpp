#include "host/core/FHistory.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

#include <QCoreApplication>

#include <utility>

namespace {

class FSelectionSetTest : public FDirectTest {
 protected:
    FSelectionSetTest() {
        mSelection->clear();
        panels();
        QObject::connect(mSelection, &FSelectionSet::changed, &mContext, [this] { ++mChanged; });
        QObject::connect(mSelection, &FSelectionSet::selectionReplaced, &mContext, [this] { ++mReplaced; });
    }
    /** How often panels were notified since the last call. */
    int panels() {
        QCoreApplication::processEvents();
        return std::exchange(mReplaced, 0);
    }

    FSelectionSet* mSelection = FSelectionSet::instance();
    QObject mContext;
    int mChanged = 0;
    int mReplaced = 0;
    FThing* a = FThing::create("a");
    FThing* b = FThing::create("b");
};

TEST_F(FSelectionSetTest, viewsSeeNotifiedChangesAndPanelsAllOfThemOnce) {
    mSelection->setSelection({a, {}, b, a});
    EXPECT_EQ(mSelection->getObjects(), (QList<FExpr<FObject>>{a, b}));
    EXPECT_EQ(mSelection->toList()->count(), 2);
    mSelection->set({a, b});
    mSelection->clear(false);
    mSelection->set({b}, false);
    EXPECT_EQ(mChanged, 1);
    EXPECT_EQ(panels(), 1);
    mSelection->remove(a);
    EXPECT_EQ(mChanged + panels(), 1);
    mSelection->remove(b, false);
    EXPECT_EQ(mSelection->count(), 0);
    EXPECT_EQ(mChanged, 1);
    EXPECT_EQ(panels(), 1);
}

TEST_F(FSelectionSetTest, whatLeavesTheModelIsDropped) {
    mSelection->set({a, b}, false);
    {
        const FUserStep step("destroy");
        FManaged::destroy(a);
    }
    EXPECT_FALSE(mSelection->contains(a));
    EXPECT_TRUE(mSelection->contains(b));
    EXPECT_EQ(mChanged, 1);
    FHistory::instance()->undo();
    EXPECT_EQ(mSelection->count(), 1) << "undo selects nothing";
    FHistory::instance()->clear();
    FModelTest::clear();
    EXPECT_EQ(mSelection->count(), 0);
}

}  // namespace
