#include "genericintegration/setup/FGenIntCompSignalRapper.h"
#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "tests/genericintegration/setup/FFakeConnector.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

#include <QCoreApplication>

namespace {

class FGenIntComputationTest : public FIntegrationTest {
 public:
    FGenIntComputationTest() {
        const FGenIntCompSignalRapper* rapper = computation()->getSignalRapper();
        QObject::connect(rapper, &FGenIntCompSignalRapper::genIntRunStarted, &mContext,
                         [this] { mSignals << "started"; });
        QObject::connect(rapper, &FGenIntCompSignalRapper::genIntRunEnded, &mContext,
                         [this](bool scan) { mSignals << (scan ? "ended" : "ended with false"); });
        QObject::connect(rapper, &FGenIntCompSignalRapper::genIntCompDestroyed, &mContext,
                         [this] { mSignals << "destroyed " + computation()->getName(); });
    }

 protected:
    QStringList mSignals;
    QObject mContext;
    QString mSaved = savedModel();
};

class FWindows : public FUserInterface {
 public:
    bool hasGui() const override { return true; }
};

FFakeConnector* connectorOf(FGenIntComputation* computation) {
    auto* connector = new FFakeConnector;
    connector->setComputation(FExpr<FExternComputation>(computation));
    connector->registerObject();
    return connector;
}

}  // namespace

TEST_F(FGenIntComputationTest, runsFromEntriesToNumbers) {
    FExprBase number;
    ASSERT_TRUE(run("ok = comp.run()")) << logText();
    ASSERT_TRUE(number.resolve("comp.getResults().getTable(\"Out.txt\").getElementAt(\"f\")"));
    EXPECT_EQ(FExprBase(number.getObject()).toString(), "4") << logText();
    EXPECT_EQ(mSignals, QStringList({"started", "ended"}));

    ASSERT_TRUE(run("conf.setEntryValue(\"x\", 5); ok = comp.run()"));
    EXPECT_EQ(FExprBase(number.getObject()).toString(), "25") << "what is kept follows the run";

    ASSERT_TRUE(run("comp.setArguments([\"-c\", \"exit 3\"]); ok = comp.run()"));
    EXPECT_EQ(FExprBase(number.getObject()).toString(), "NaN") << "not the number of the run before";
    EXPECT_EQ(mSignals.count("ended"), 3) << "also after a failure";
    EXPECT_EQ(textOf("comp.getExitCode()"), "3");
}

TEST_F(FGenIntComputationTest, clonesItsSetUpForAnotherRun) {
    FCustomComputation* copy = nullptr;
    {
        const FUserStep step("clone set-up");
        copy = computation()->cloneSetup();
    }
    ASSERT_NE(copy, nullptr);
    const FConfigurationCustom* configuration = copy->getConfiguration().ptr();
    ASSERT_NE(configuration, nullptr);
    EXPECT_EQ(configuration->getDefinition(), computation()->getConfiguration()->getDefinition());
    ASSERT_TRUE(
        run(configuration->getName() + ".setEntryValue(\"x\", 5); ok = comp.run(); ok = " + copy->getName() + ".run()"))
        << logText();
    EXPECT_EQ(textOf("comp.getResults().getDataAt(\"f\",0)"), "4") << "values are independent";
    EXPECT_EQ(textOf(copy->getName() + ".getResults().getDataAt(\"f\",0)"), "25");
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel(), mSaved) << "one step made both objects";
}

TEST_F(FGenIntComputationTest, failsWithoutAConfiguration) {
    ASSERT_TRUE(run("ok = comp.run(); comp.setConfiguration(NULL); again = comp.run()"));
    EXPECT_TRUE(logHolds("No configuration found")) << logText();
    EXPECT_EQ(mSignals, QStringList({"started", "ended"})) << "the second one never started";
    EXPECT_EQ(computation()->getLastRun().stateName(), "failed");
}

TEST_F(FGenIntComputationTest, outlivesWhatHappensInTheMiddleOfARun) {
    for (const QString event : {"destroy(def)", "destroy(conf)", "destroy(comp)", "destroy(square)",
                                "comp.setConfiguration(NULL)", "destroy(comp.getResults())"}) {
        ASSERT_TRUE(run("ok = comp.run()")) << event.toStdString() << logText();
        ASSERT_EQ(textOf("comp.getResults().getDataAt(\"f\",0)"), "4") << event.toStdString();
        mSignals.clear();
        ASSERT_TRUE(run("comp.setArguments([\"-c\", \"sleep 0.2; echo f 7 > Out.txt\"])"));
        FGenIntComputation* running = computation();
        const FExprBase keep(running);
        const FExpr<FComputationResults> before = running->getResults();
        ASSERT_TRUE(computation()->run(false));
        ASSERT_TRUE(run(event)) << logText();
        while (!running->canRun()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        EXPECT_EQ(mSignals.filter("ended").size(), 1) << event.toStdString();
        ASSERT_TRUE(FHistory::instance()->undo());
        ASSERT_TRUE(FHistory::instance()->undo());
        EXPECT_EQ(savedModel(), mSaved) << event.toStdString();
        EXPECT_EQ(dynamic_cast<FResultsGenInt*>(before.ptr())->getDataAt("f", 0), 4) << event.toStdString();
    }
}

TEST_F(FGenIntComputationTest, saysThatItGoesWhileItIsWhole) {
    ASSERT_TRUE(run("destroy(comp)"));
    EXPECT_EQ(mSignals, QStringList({"destroyed comp"}));
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_TRUE(computation()->canRun());
    EXPECT_TRUE(FHistory::instance()->redo());
    EXPECT_EQ(mSignals, QStringList({"destroyed comp", "destroyed comp"}));
}

TEST_F(FGenIntComputationTest, locksItsConnectorsForARun) {
    ASSERT_TRUE(run("genericIntegrationComputation second() { .setConfiguration(conf) }"));
    const FFakeConnector* first = connectorOf(computation());
    const FFakeConnector* second = connectorOf(computation("second"));
    computation()->openSoftwareConnector();
    EXPECT_TRUE(computation()->doubleClickedInTree());
    EXPECT_EQ(first->mCalls, QStringList({"show", "show"}));

    ASSERT_TRUE(run("ok = comp.run()"));
    EXPECT_EQ(first->mCalls.size(), 2) << "nothing to lock without windows";
    FWindows windows;
    FUserInterface* before = FUserInterface::replace(&windows);
    ASSERT_TRUE(run("ok = comp.run()"));
    FUserInterface::replace(before);
    EXPECT_EQ(first->mCalls.mid(2), QStringList({"lock", "unlock"}));
    EXPECT_EQ(second->mCalls, QStringList());
}
