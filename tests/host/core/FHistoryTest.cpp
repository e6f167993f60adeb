#include "host/core/FAssert.h"
#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserStep.h"
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
    EXPECT_TRUE(history().getUndoneLabels().isEmpty());
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

TEST_F(FHistoryTest, aCommandIsRecordedWhoeverExecutesIt) {
    run("thing a(1)");
    auto* thing = object<FThing>("a");
    set(*thing, "setNumber", 5.0);
    run("a.setNumber(7)\na.setNumber(7)");
    EXPECT_EQ(history().getLabels(), QStringList({"thing", "setNumber", "setNumber"}))
        << "the last one changes nothing";
    for (const double number : {5.0, 1.0}) {
        EXPECT_TRUE(history().undo());
        EXPECT_EQ(thing->getNumber(), number);
    }
}

TEST_F(FHistoryTest, aChangeOutsideOfAnyStepIsAnError) {
    run("thing a(1)");
    auto* thing = object<FThing>("a");
    QStringList failures;
    FAssert::setHandler([&failures](const FAssert::Failure& failure) { failures << failure.message; });
    thing->setName("b");
    EXPECT_EQ(failures, QStringList{"\"a\" is changed outside of any step of the history"});
    {
        const FUserStep step("rename");
        thing->setName("c");
        thing->addDocu("text", 1);
    }
    {
        const FHistoryBlocker blocker;
        thing->setInProject(false);
    }
    EXPECT_EQ(failures.size(), 1);
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(thing->getName(), "b") << "what no step knows isn't undone";
    EXPECT_TRUE(thing->getDocu().isEmpty());
    FManaged::destroy(thing);
    FThing::create("d");
    EXPECT_EQ(failures.size(), 3);
}

TEST_F(FHistoryTest, updatesRunInTheirStepAndAreReplayedAfterUndoAndRollback) {
    run("thing a(1)\nthing b() { .setFriend(a) }");
    auto* thing = object<FThing>("b");
    thing->setUpdateOnDemand(false);
    QStringList seen;
    thing->mAtUpdate = [&seen] {
        seen << QString("%1 %2").arg(history().inTransaction()).arg(history().isReplaying());
    };
    run("a.setNumber(2)");
    EXPECT_EQ(seen, QStringList{"1 0"});
    history().undo();
    EXPECT_EQ(seen.mid(1), QStringList{"0 1"});
    {
        FUserStep step("taken back");
        set(*object<FThing>("a"), "setNumber", 3.0);
        step.rollback();
    }
    EXPECT_EQ(seen.mid(2), QStringList{"0 1"});
    EXPECT_EQ(textOf("a.getNumber()"), "1");
}

TEST_F(FHistoryTest, aKeystrokeInALongTextCostsLittle) {
    constexpr int length = 3'000'000;
    run("thing a()");
    auto* thing = object<FThing>("a");
    const QString start = QString(length, 'x') + QString(length, 'y');
    set(*thing, "setText", start);
    const std::size_t before = history().getSize();
    QString text = start;
    for (int i = 0; i < 10; ++i) {
        text.insert(length + i, i % 2 ? 'y' : 'x');
        set(*thing, "setText", text);
    }
    EXPECT_LT(history().getSize() - before, 10'000U);
    for (const bool forward : {false, true}) {
        for (int i = 0; i < 10; ++i) {
            EXPECT_TRUE(forward ? history().redo() : history().undo());
        }
        EXPECT_TRUE(thing->getText() == (forward ? text : start));
    }
}

TEST_F(FHistoryTest, theChannelReportsEachStep) {
    QStringList heard;
    const FChanges* changes = FChanges::instance();
    QObject listener;
    const auto hear = [&](auto signal, const char* word) {
        QObject::connect(changes, signal, &listener, [&heard, word](const QString& label) { heard << word + label; });
    };
    hear(&FChanges::stepDone, "done ");
    hear(&FChanges::stepUndone, "undone ");
    hear(&FChanges::stepRedone, "redone ");
    hear(&FChanges::stepDropped, "dropped ");
    QObject::connect(changes, &FChanges::objectEntered, &listener, [&](FManaged* o) { heard << "+" + o->getName(); });
    QObject::connect(changes, &FChanges::objectLeft, &listener, [&](FManaged* o) { heard << "-" + o->getName(); });
    QObject::connect(changes, &FChanges::objectChanged, &listener, [&](FManaged* o) { heard << "*" + o->getName(); });
    QObject::connect(changes, &FChanges::objectRenamed, &listener,
                     [&](FManaged* o, const QString& old) { heard << old + ">" + o->getName(); });
    QObject::connect(changes, &FChanges::messageLogged, &listener, [&](const FLogMsg& m) { heard << m.place; });
    const auto take = [&heard] { return std::exchange(heard, {}).join(' ').toStdString(); };
    run("thing a(1)");
    EXPECT_EQ(take(), "+a *a done thing");
    run("[a.setNumber(1), a.setNumber(2), a.setText(\"x\"), rename(a, \"b\")]");
    EXPECT_EQ(take(), "a>b *b done ");
    run("undo()\nredo()");
    EXPECT_EQ(take(), "b>a *a undone  a>b *b redone ");
    run("b.setNumber(2)\nb.at(0)");
    EXPECT_EQ(take(), "test:2:3");
    run("[destroy(b), NULL.at(0).noSuch()]");
    EXPECT_EQ(take(), "") << "an error while the statement is bound";
    run("undo()\nb = 1\ndestroy(a)");
    EXPECT_EQ(take(), "b>a *a undone  -a dropped  done destroy");
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

TEST_F(FHistoryTest, stepsBecomeOneOnlyWhereTheyMay) {
    run("thing a(1)\nthing b(10)");
    auto* a = object<FThing>("a");
    const auto change = [&](const QString& thing, double number, const QString& label) {
        FUserStep step(label);
        step.joinLast();
        object<FThing>(thing)->setNumber(number);
        history().addStep(object<FThing>(thing));
    };
    history().clear();
    change("a", 2, "turn");
    change("a", 3, "turn");
    change("b", 20, "turn");
    change("a", 4, "turn");
    EXPECT_EQ(history().getLabels(), QStringList("turn"));
    change("a", 5, "other");
    EXPECT_EQ(history().getLabels(), (QStringList{"turn", "other"}));
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(a->getNumber(), 4);
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(a->getNumber(), 1);
    EXPECT_EQ(object<FThing>("b")->getNumber(), 10);
    EXPECT_TRUE(history().redo());
    EXPECT_EQ(a->getNumber(), 4);
    EXPECT_EQ(object<FThing>("b")->getNumber(), 20);
    // One that brings an object stays on its own, and so does what follows it.
    {
        FUserStep step("turn");
        step.joinLast();
        FThing::create("c")->setNumber(1);
    }
    change("a", 6, "turn");
    EXPECT_EQ(history().getLabels(), (QStringList{"turn", "turn", "turn"}));
    // A long text is kept as the part that changed.
    const QString text(10'000, 'x');
    for (const char* end : {"1", "2"}) {
        FUserStep step("turn");
        step.joinLast();
        a->setText(text + end);
        history().addStep(a);
    }
    EXPECT_EQ(history().getLabels().size(), 5);
    EXPECT_TRUE(history().undo());
    EXPECT_EQ(a->getText(), text + "1");
}

}  // namespace
