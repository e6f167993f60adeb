#include "host/core/FHistory.h"

#include "host/core/FObjectManager.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

class FHistoryTest : public FModelTest {
 protected:
    ~FHistoryTest() override { history().setLimit(std::size_t{256} << 20U); }

    static FHistory& history() { return *FHistory::instance(); }
};

TEST_F(FHistoryTest, aStepBeforeOrAfterTheChangeKeepsTheSame) {
    FThing* thing = FThing::create("a");
    for (const bool before : {true, false}) {
        FHistoryTransaction transaction("change");
        if (before) {
            transaction.addStep(thing);
        }
        thing->setNumber(thing->getNumber() + 1);
        if (!before) {
            transaction.addStep(thing);
        }
    }
    EXPECT_EQ(thing->getNumber(), 2);
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(thing->getNumber(), 1);
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(thing->getNumber(), 0);
    EXPECT_FALSE(history().undo());
    EXPECT_TRUE(history().redo());
    EXPECT_TRUE(history().redo());
    EXPECT_EQ(thing->getNumber(), 2);
    EXPECT_FALSE(history().redo());
}

TEST_F(FHistoryTest, theOutermostTransactionCounts) {
    FThing* thing = FThing::create("a");
    {
        FHistoryTransaction outer("outer");
        FHistoryTransaction inner("inner");
        inner.addStep(thing);
    }
    { FHistoryTransaction empty("empty"); }
    EXPECT_EQ(history().getLabels(), QStringList{"outer"});
}

TEST_F(FHistoryTest, rollbackTakesBackCreationAndChange) {
    FThing* old = FThing::create("old");
    history().startTransaction("failing");
    history().addStep(old);
    old->setNumber(5);
    FThing::create("fresh");
    history().rollback();
    EXPECT_EQ(old->getNumber(), 0);
    EXPECT_EQ(FObjectManager::instance()->find("fresh"), nullptr);
    EXPECT_TRUE(history().getLabels().isEmpty());
}

TEST_F(FHistoryTest, handlesFindADestroyedObjectAgain) {
    run("thing b(7)\nthing a()\na.setFriend(b)");
    auto* a = dynamic_cast<FThing*>(FObjectManager::instance()->find("a"));
    const FExpr<FThing> handle(FObjectManager::instance()->find("b"));
    const FExpr<FThing> other(handle);
    const FObject* object = handle.ptr();
    run("destroy(b)");
    EXPECT_FALSE(handle);
    EXPECT_EQ(handle.ptr(), nullptr);
    EXPECT_EQ(handle, other);
    EXPECT_NE(handle, FExpr<FThing>());
    EXPECT_FALSE(FObject::exists(object));
    history().undo();
    EXPECT_TRUE(handle);
    EXPECT_EQ(a->getFriend(), handle);
    EXPECT_EQ(handle->getNumber(), 7);
    EXPECT_TRUE(FObject::exists(handle.ptr()));
}

TEST_F(FHistoryTest, destructionsThatFollowAreUndoneAndNotRepeated) {
    run("thing b()\nthing a() {\n.setFriend(b)\n.setText(\"owner\")\n}");
    const QString before = savedModel();
    run("destroy(a)");
    EXPECT_EQ(savedModel(), "");
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(savedModel(), before);
    EXPECT_TRUE(history().redo());
    EXPECT_EQ(savedModel(), "");
}

TEST_F(FHistoryTest, namesAreKnownAgainAfterUndo) {
    run("thing a(1)\nthing b(2)");
    const QString before = savedModel();
    {
        FHistoryTransaction transaction("swap");
        FManaged* a = FObjectManager::instance()->find("a");
        FManaged* b = FObjectManager::instance()->find("b");
        transaction.addStep(a);
        transaction.addStep(b);
        a->setName("c");
        b->setName("a");
        a->setName("b");
    }
    EXPECT_EQ(textOf("a.getNumber()"), "2");
    history().undo();
    EXPECT_EQ(textOf("a.getNumber()"), "1");
    EXPECT_EQ(savedModel(), before);
    history().redo();
    EXPECT_EQ(textOf("b.getNumber()"), "1");
}

TEST_F(FHistoryTest, theOldestStepsGoWhenMemoryIsShort) {
    run("thing a()");
    history().setLimit(10'000);
    for (int i = 0; i < 50; ++i) {
        run(QStringLiteral("a.setText(\"%1\")").arg(QString(1000, QChar('a' + i % 26))));
    }
    EXPECT_LE(history().getSize(), 10'000U);
    EXPECT_LT(history().getLabels().size(), 10);
    EXPECT_TRUE(history().undo());
}

TEST_F(FHistoryTest, countsWhatNothingElseHolds) {
    constexpr std::size_t large = 200'000;
    run("thing a()\na.setText(\"" + QString(static_cast<int>(large / sizeof(QChar)), 'x') + "\")");
    EXPECT_LT(history().getSize(), large) << "the model holds it";
    run("destroy(a)");
    EXPECT_GE(history().getSize(), large);
    history().undo();
    EXPECT_LT(history().getSize(), large);
    history().undo();
    EXPECT_GE(history().getSize(), large) << "redo needs it";
    EXPECT_LT(history().getSize(), 2 * large);
    history().setLimit(large);
    EXPECT_FALSE(history().canRedo());
    EXPECT_TRUE(history().undo());
}

TEST_F(FHistoryTest, aStepAboveTheLimitIsTold) {
    run("thing a()\na.setText(\"" + QString(10'000, 'x') + "\")");
    history().setLimit(10'000);
    run("destroy(a)");
    EXPECT_EQ(history().getSize(), 0U);
    EXPECT_FALSE(history().undo());
    EXPECT_TRUE(logHolds("\"destroy\" needs more memory"));
}

TEST_F(FHistoryTest, whatIsBlockedIsNoPartOfALaterStep) {
    FThing* thing = FThing::create("a");
    {
        const FHistoryBlocker blocker;
        thing->setNumber(3);
        history().addStep(thing);
    }
    EXPECT_TRUE(history().getLabels().isEmpty());
    run("a.setNumber(4)");
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(thing->getNumber(), 3);
}

TEST_F(FHistoryTest, aStepOfAnObjectThatWentWithoutAStep) {
    run("thing a(1)\na.setNumber(2)");
    {
        const FHistoryBlocker blocker;
        FManaged::destroy(FObjectManager::instance()->find("a"));
    }
    EXPECT_TRUE(history().undo());
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(savedModel(), "");
    EXPECT_TRUE(history().redo());
    EXPECT_EQ(textOf("a.getNumber()"), "1");
}

}  // namespace
