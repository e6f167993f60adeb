#include "host/core/FHistory.h"

#include "host/core/FObjectManager.h"
#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

class FHistoryTest : public FModelTest {
 public:
    ~FHistoryTest() override { history().setLimit(std::size_t{256} << 20U); }

 protected:
    static FHistory& history() { return *FHistory::instance(); }
};

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
    run("thing a(1)");
    auto* thing = object<FThing>("a");
    history().clear();
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
