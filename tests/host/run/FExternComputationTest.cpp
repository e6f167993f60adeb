#include "host/run/FExternComputation.h"

#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "tests/support/FModelTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <cmath>
#include <functional>

namespace {

/** Results that read the one number in "out.dat". */
class FProbeResults : public FClass<FProbeResults, FResultsGeneric> {
 public:
    static FClassData mClass;

    FProbeResults() = default;
    explicit FProbeResults(const FExpr<FExternComputation>& computation) : FClass(QString(), nullptr, computation) {}

    FComputationResults* createResults(const FExpr<FDesign>&,
                                       const FExpr<FExternComputation>& computation) const override {
        auto* results = new FProbeResults(computation);
        results->registerObject();
        results->FResults::init();
        return results;
    }

 protected:
    void readOutputFiles() const override {
        auto* table = const_cast<FProbeResults*>(this)->addTable("out.dat", 1, 1);
        QFile file(getResultPath() + "out.dat");
        if (file.open(QIODevice::ReadOnly)) {
            table->setData({{file.readAll().trimmed().toDouble()}});
        }
        FResultsGeneric::readOutputFiles();
    }
};

FClassData FProbeResults::mClass("FProbeResults", &FResultsGeneric::mClass);

/** A computation that writes its script into the folder, and notes in which order its steps come. */
class FProbe : public FExternComputation {
 public:
    explicit FProbe(const QString& name) : FExternComputation(name) {
        FProbeResults::initPrototype();
        setExecutable("sh");
    }
    const FObject* getResultType() const override { return FProbeResults::null(); }

    bool runScript(const QString& script) {
        setArguments({"-c", script});
        mSteps.clear();
        return run();
    }
    double number() const {
        auto* results = dynamic_cast<FResultsGeneric*>(getResults().ptr());
        return results->getData("out.dat")->getElementAt(0, 0);
    }

    mutable QStringList mSteps;
    bool mCanWrite = true;
    std::function<void()> mAtStart = [] {};

 protected:
    bool copyInputFiles(const QString& folder) const override {
        mSteps << "copy" + QString(QFileInfo(folder).isDir() ? "" : ": no folder");
        return true;
    }
    bool doExports() const override { return mSteps << "exports", true; }
    bool writeOutputFile() const override {
        mSteps << "write";
        QFile file(FPathManager::instance()->getInputDir({}, {}) + "in.txt");
        return mCanWrite && file.open(QIODevice::WriteOnly) && file.write("42") == 2;
    }
    void computationStarted() const override {
        mSteps << "started";
        mAtStart();
    }
    void computationFinished() const override { mSteps << "finished"; }
    void applyOutputHandles(FComputationResults* results) const override {
        mSteps << "handles";
        results->setOutOfDate(true);
    }
    QStringList getReadFiles() const override { return {"out.dat"}; }
};

const QStringList& allSteps() {
    static const QStringList steps{"copy", "exports", "write", "started", "finished", "handles"};
    return steps;
}

class FExternComputationTest : public FModelTest {
 public:
    FExternComputationTest() {
        QDir(mRoot.path()).mkpath(mFolder);
        FMerixCtrl::instance()->setProjectFile(mRoot.filePath(mFolder + "/wing.mrx"));
        mProbe->registerObject();
    }
    ~FExternComputationTest() override { FMerixCtrl::instance()->setProjectFile({}); }

 protected:
    QString logText() const { return log().join('\n'); }
    void waitForEnd() const {
        QElapsedTimer timer;
        timer.start();
        while (!mProbe->canRun() && timer.elapsed() < 30000) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
    }

    QTemporaryDir mRoot;
    QString mFolder = QString::fromUtf8("läuft \"hier\" 'gut' $HOME");
    FProbe* mProbe = new FProbe("probe");
    FExprBase mKeep{mProbe};
};

}  // namespace

TEST_F(FExternComputationTest, runsTheProgramInItsFolder) {
    ASSERT_TRUE(mProbe->runScript("cat in.txt > out.dat; echo said; echo wrong >&2")) << logText().toStdString();
    EXPECT_EQ(mProbe->mSteps, allSteps());
    EXPECT_EQ(mProbe->number(), 42);
    EXPECT_EQ(mProbe->getState(), "finished");
    EXPECT_EQ(mProbe->getExitCode(), 0);
    EXPECT_EQ(mProbe->getWorkingPath(), mRoot.filePath(mFolder + "/wing.results/baseline/probe/"));
    const FRunRecord& record = *mProbe->getResults()->getRun();
    EXPECT_TRUE(record.program.startsWith('/') && record.program.endsWith("/sh")) << record.program.toStdString();
    EXPECT_EQ(record.arguments.size(), 2);
    EXPECT_LE(record.start, record.end);
    QFile said(mProbe->getWorkingPath() + "stdout.txt");
    ASSERT_TRUE(said.open(QIODevice::ReadOnly));
    EXPECT_EQ(said.readAll(), "said\n");
    EXPECT_EQ(logText(), "");
}

TEST_F(FExternComputationTest, passesSettingsOn) {
    mProbe->setConsoleFiles(false);
    mProbe->setEnvironment({"WEIGHT=7 kg"});
    mProbe->setStandardInput("in.txt");
    ASSERT_TRUE(mProbe->runScript("read x; echo $x > out.dat; echo \"$WEIGHT\" > weight")) << logText().toStdString();
    EXPECT_EQ(mProbe->number(), 42);
    QFile weight(mProbe->getWorkingPath() + "weight");
    ASSERT_TRUE(weight.open(QIODevice::ReadOnly));
    EXPECT_EQ(weight.readAll(), "7 kg\n");
    EXPECT_FALSE(QFile::exists(mProbe->getWorkingPath() + "stdout.txt"));

    QFile script(mRoot.filePath("solver.sh"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho 3 > out.dat\n");
    script.close();
    script.setPermissions(script.permissions() | QFileDevice::ExeOwner);
    const QString before = QDir::currentPath();
    QDir::setCurrent(mRoot.path());
    mProbe->setExecutable("./solver.sh");
    EXPECT_TRUE(mProbe->run()) << "a path is relative to the folder of the caller";
    QDir::setCurrent(before);
    EXPECT_EQ(mProbe->number(), 3);
}

TEST_F(FExternComputationTest, neverShowsANumberOfAnEarlierRun) {
    ASSERT_TRUE(mProbe->runScript("echo 1 > out.dat"));
    const FExpr<FComputationResults> first = mProbe->getResults();

    EXPECT_FALSE(mProbe->runScript("exit 3"));
    EXPECT_TRUE(std::isnan(mProbe->number()));
    EXPECT_EQ(mProbe->getState(), "failed");
    EXPECT_EQ(mProbe->getExitCode(), 3);
    EXPECT_NE(mProbe->getResults(), first);
    EXPECT_EQ(mProbe->mSteps, allSteps());
    const auto numberOf = [](const FExpr<FComputationResults>& results) {
        return dynamic_cast<FResultsGeneric*>(results.ptr())->getData("out.dat")->getElementAt(0, 0);
    };
    EXPECT_EQ(numberOf(first), 1) << "earlier results keep theirs";

    mProbe->mCanWrite = false;
    EXPECT_FALSE(mProbe->runScript("echo 5 > out.dat"));
    EXPECT_TRUE(std::isnan(mProbe->number()));
    EXPECT_EQ(mProbe->mSteps, QStringList({"copy", "exports", "write", "handles"}));
    EXPECT_TRUE(logHolds("could not be written"));
    EXPECT_EQ(numberOf(first), 1) << "also when their files are gone";
    EXPECT_EQ(FObjectManager::instance()->getManaged(FProbeResults::null()).size(), 3);

    mProbe->mCanWrite = true;
    auto* declared = new FProbeResults(FExpr<FExternComputation>(mProbe));
    declared->registerObject();
    for (int number = 6; number < 9; ++number) {
        EXPECT_TRUE(mProbe->runScript(QString("echo %1 > out.dat").arg(number)));
        EXPECT_EQ(mProbe->number(), number);
    }
    EXPECT_EQ(FObjectManager::instance()->getManaged(FProbeResults::null()).size(), 4)
        << "the first ones, the declared ones, and those of the last two runs";
    EXPECT_TRUE(declared->isInModel());
}

TEST_F(FExternComputationTest, failsWhenOldFilesCanNotBeMovedAside) {
    ASSERT_TRUE(mProbe->runScript("echo 1 > out.dat"));
    QFile block(mProbe->getWorkingPath() + "../.earlier/probe");
    ASSERT_TRUE(block.open(QIODevice::WriteOnly));
    EXPECT_FALSE(mProbe->runScript("echo 2 > out.dat"));
    EXPECT_EQ(mProbe->mSteps, QStringList({"handles"}));
    EXPECT_TRUE(logHolds("out.dat' is left of an earlier run")) << logText().toStdString();
    auto* results = dynamic_cast<FResultsGeneric*>(mProbe->getResults().ptr());
    EXPECT_FALSE(results->getData("out.dat")) << "what is in the folder isn't of this run";
}

TEST_F(FExternComputationTest, tellsWhatEndedARun) {
    struct Case {
        const char* script;
        const char* state;
        FRunRecord::Cause cause;
        const char* text;
    };
    using Cause = FRunRecord::Cause;
    for (const Case& c :
         {Case{"echo 1 > out.dat; echo 'no licence' >&2; exit 3", "failed", Cause::ExitCode, "no licence"},
          Case{"echo 1 > out.dat; kill -9 $$", "failed", Cause::Signal, "SIGKILL"},
          Case{"echo 1 > out.dat; sleep 60", "timed out", Cause::TimeLimit, "0.3 s"},
          Case{"true", "failed", Cause::FileMissing, "'out.dat'"}}) {
        mProbe->setTimeLimit(qstrcmp(c.state, "timed out") == 0 ? 0.3 : 0);
        EXPECT_FALSE(mProbe->runScript(c.script)) << c.script;
        EXPECT_EQ(mProbe->getState(), c.state);
        EXPECT_EQ(mProbe->getResults()->getRun()->cause, c.cause) << c.script;
        EXPECT_EQ(mProbe->mSteps, allSteps()) << c.script;
        const QString told = log().last();
        EXPECT_TRUE(told.startsWith("error: probe: ") && told.contains(c.text)) << told.toStdString();
        EXPECT_TRUE(told.contains(mProbe->getWorkingPath())) << told.toStdString();
        EXPECT_EQ(std::isnan(mProbe->number()), c.cause == Cause::FileMissing) << c.script;
        const int lines = log().size();
        mProbe->number();
        EXPECT_EQ(log().size(), lines) << "that results are of a failed run is said once";
    }
}

TEST_F(FExternComputationTest, tellsWhyAProgramCanNotBeStarted) {
    mProbe->setExecutable("no-such-program");
    EXPECT_FALSE(mProbe->run());
    EXPECT_EQ(mProbe->getState(), "failed");
    EXPECT_TRUE(logHolds("no-such-program")) << logText().toStdString();
    EXPECT_EQ(mProbe->mSteps, allSteps());

    mProbe->mSteps.clear();
    mProbe->setExecutable("");
    EXPECT_FALSE(mProbe->run());
    EXPECT_TRUE(logHolds("setExecutable"));
    EXPECT_FALSE(mProbe->mSteps.contains("started"));

    mProbe->setExecutable("cat");
    mProbe->setStandardInput("../../../wing.mrx");
    EXPECT_FALSE(mProbe->run());
    EXPECT_TRUE(logHolds("outside the folder"));
    EXPECT_EQ(mProbe->getResults()->getRun()->cause, FRunRecord::Cause::ProgramNotStarted);
}

TEST_F(FExternComputationTest, runsOnceAtATimeAndCanBeCancelled) {
    mProbe->setArguments({"-c", "echo $$ > pid; exec sleep 60"});
    ASSERT_TRUE(mProbe->run(false));
    EXPECT_EQ(mProbe->getState(), "running");
    EXPECT_FALSE(mProbe->run()) << "one goes on";
    EXPECT_TRUE(logHolds("goes on"));
    EXPECT_FALSE(mProbe->rereadResults());
    auto* results = dynamic_cast<FResultsGeneric*>(mProbe->getResults().ptr());
    EXPECT_FALSE(results->prepareResults()) << "nothing is read before the end";
    EXPECT_TRUE(mProbe->cancel());
    waitForEnd();
    EXPECT_EQ(mProbe->getState(), "cancelled");
    EXPECT_TRUE(mProbe->wasAborted());
    EXPECT_EQ(mProbe->mSteps, allSteps());
    EXPECT_EQ(log().filter("cancelled").size(), 1) << logText().toStdString();
    EXPECT_FALSE(mProbe->cancel());

    mProbe->mAtStart = [this] { mProbe->cancel(); };
    EXPECT_FALSE(mProbe->runScript("sleep 60")) << "cancelled by a step before the program";
    EXPECT_EQ(mProbe->getState(), "cancelled");
    EXPECT_EQ(mProbe->mSteps, allSteps());
}

TEST_F(FExternComputationTest, endsARunWhenItLeavesTheModel) {
    mProbe->setArguments({"-c", "exec sleep 60"});
    bool isGone = false;
    mProbe->mAtStart = [guard = std::shared_ptr<bool>(&isGone, [](bool* flag) { *flag = true; })] {};
    ASSERT_TRUE(mProbe->run(false));
    mKeep = FExprBase();
    {
        const FHistoryBlocker blocker;
        FManaged::destroy(mProbe);
    }
    QElapsedTimer timer;
    timer.start();
    while (!isGone && timer.elapsed() < 30000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    }
    EXPECT_TRUE(isGone) << "the run was its last keeper";
    EXPECT_TRUE(logHolds("cancelled"));
}

TEST_F(FExternComputationTest, readsFilesOfAnEarlierSessionAgain) {
    EXPECT_FALSE(mProbe->rereadResults());
    EXPECT_TRUE(logHolds("no results"));
    QDir().mkpath(mProbe->getWorkingPath());
    QFile file(mProbe->getWorkingPath() + "out.dat");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("9");
    file.close();
    ASSERT_TRUE(mProbe->rereadResults());
    EXPECT_EQ(mProbe->number(), 9);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("10");
    file.close();
    EXPECT_EQ(mProbe->number(), 9);
    ASSERT_TRUE(mProbe->rereadResults());
    EXPECT_EQ(mProbe->number(), 10);
    EXPECT_EQ(mProbe->mSteps, QStringList());
}

TEST_F(FExternComputationTest, marksWhatDependsOnItAndLeavesTheHistoryAlone) {
    FExprBase state;
    ASSERT_TRUE(state.resolve("probe.getState()"));
    EXPECT_EQ(FExprBase(state.getObject()).toString(), "ready");
    ASSERT_TRUE(run("probe.setArguments([\"-c\", \"exit 1\"]); ok = probe.run()"));
    EXPECT_EQ(FExprBase(state.getObject()).toString(), "failed");

    const int steps = FHistory::instance()->getLabels().size();
    ASSERT_TRUE(run("probe.setArguments([\"-c\", \"echo 8 > out.dat\"]); ok = probe.run(); if (probe.run()) {}"));
    EXPECT_EQ(FHistory::instance()->getLabels().size(), steps + 1) << "the setting alone";
    const FExpr<FComputationResults> results = mProbe->getResults();
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(mProbe->getArguments(), QStringList({"-c", "exit 1"}));
    EXPECT_EQ(mProbe->getResults(), results);
    EXPECT_EQ(mProbe->number(), 8);
}

TEST_F(FExternComputationTest, refusesATimeLimitBelowZero) {
    mProbe->setTimeLimit(12.5);
    mProbe->setTimeLimit(-1);
    mProbe->setTimeLimit(qQNaN());
    EXPECT_EQ(mProbe->getTimeLimit(), 12.5);
    EXPECT_EQ(log().filter("time limit").size(), 2);
}
