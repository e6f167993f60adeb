#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/design/FDesign.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FResultsOutOfDateBlocker.h"
#include "host/script/FProject.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/waitUntil.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QTimer>

#include <cmath>
#include <cstdlib>
#include <functional>

namespace {

/** Results that read the one number in "out.dat". */
class FProbeResults : public FClass<FProbeResults, FResultsGeneric> {
 public:
    static FClassData mClass;

    FProbeResults() = default;
    explicit FProbeResults(const FExpr<FExternComputation>& computation, const FExpr<FDesign>& design = {})
        : FClass(QString(), design, computation) {}

    FComputationResults* createResults(const FExpr<FDesign>& design,
                                       const FExpr<FExternComputation>& computation) const override {
        auto* results = new FProbeResults(computation, design);
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
        const FHistoryBlocker blocker;
        registerObject();
        FModelTest::set(*this, "setExecutable", QString("sh"));
    }
    const FObject* getResultType() const override { return FProbeResults::null(); }

    bool runScript(const QString& script) {
        FModelTest::set(*this, "setArguments", QStringList{"-c", script});
        mSteps.clear();
        return run();
    }
    double number() const {
        auto* results = dynamic_cast<FResultsGeneric*>(getResults().ptr());
        return results->getData("out.dat")->getElementAt(0, 0);
    }

    mutable QStringList mSteps;
    bool mCanWrite = true;
    QString mReadFile = "out.dat";
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
    QStringList getReadFiles() const override { return {mReadFile}; }
    QStringList getFurtherFiles() const override { return {"cp.dat"}; }
};

const QStringList& allSteps() {
    static const QStringList steps{"copy", "exports", "write", "started", "finished", "handles"};
    return steps;
}

class FExternComputationTest : public FDirectTest, public FTestFolder {
 public:
    FExternComputationTest() { FMerixCtrl::instance()->setProjectFile(path(mFolder + "/wing.mrx")); }

 protected:
    QString runFile(const QString& name) const { return mFolder + "/wing.results/baseline/probe/" + name; }

    QString mFolder = QString::fromUtf8("läuft \"hier\" 'gut' $HOME");
    FProbe* mProbe = new FProbe("probe");
    FExprBase mKeep{mProbe};
};

}  // namespace

TEST_F(FExternComputationTest, runsTheProgramInItsFolder) {
    ASSERT_TRUE(mProbe->runScript("cat in.txt > out.dat; echo said; echo wrong >&2")) << logText();
    EXPECT_EQ(mProbe->mSteps, allSteps());
    EXPECT_EQ(mProbe->number(), 42);
    EXPECT_EQ(mProbe->getLastRun().stateName(), "finished");
    EXPECT_EQ(mProbe->getLastRun().exitCode, 0);
    EXPECT_TRUE(mProbe->getResults()->getRun()->program.endsWith("/sh"));
    EXPECT_EQ(read(runFile("stdout.txt")), "said\n");
    EXPECT_EQ(logText(), "");
}

TEST_F(FExternComputationTest, passesSettingsOn) {
    set(*mProbe, "setConsoleFiles", false);
    set(*mProbe, "setEnvironment", QStringList{"WEIGHT=7 kg"});
    set(*mProbe, "setStandardInput", QString("in.txt"));
    ASSERT_TRUE(mProbe->runScript("read x; echo $x > out.dat; echo \"$WEIGHT\" > weight")) << logText();
    EXPECT_EQ(mProbe->number(), 42);
    EXPECT_EQ(read(runFile("weight")), "7 kg\n");
    EXPECT_FALSE(has(runFile("stdout.txt")));

    write("solver.sh", "#!/bin/sh\necho 3 > out.dat\n", QFile::ExeOwner);
    const QString before = QDir::currentPath();
    QDir::setCurrent(path());
    set(*mProbe, "setExecutable", QString("./solver.sh"));
    EXPECT_TRUE(mProbe->run()) << "a path is relative to the folder of the caller";
    QDir::setCurrent(before);
    EXPECT_EQ(mProbe->number(), 3);
}

TEST_F(FExternComputationTest, neverShowsANumberOfAnEarlierRun) {
    ASSERT_TRUE(mProbe->runScript("echo 1 > out.dat; echo 2 > stray"));
    const FExpr<FComputationResults> first = mProbe->getResults();

    EXPECT_FALSE(mProbe->runScript("cp stray out.dat")) << "all that a run left is moved aside";
    EXPECT_EQ(mProbe->mSteps, allSteps());
    const auto numberOf = [](const FExpr<FComputationResults>& results) {
        return dynamic_cast<FResultsGeneric*>(results.ptr())->getData("out.dat")->getElementAt(0, 0);
    };
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
    write(runFile("../.earlier/probe"), "a file where a folder is needed");
    EXPECT_FALSE(mProbe->runScript("echo 2 > out.dat"));
    EXPECT_EQ(mProbe->mSteps, QStringList({"handles"}));
    EXPECT_TRUE(logHolds("out.dat' is left from an earlier run")) << logText();
    auto* results = dynamic_cast<FResultsGeneric*>(mProbe->getResults().ptr());
    EXPECT_FALSE(results->getData("out.dat")) << "what is in the folder isn't of this run";
}

TEST_F(FExternComputationTest, succeedsOnlyWithAFileThatCanBeRead) {
    struct Case {
        const char* script;
        const char* told;
        bool succeeds;
    };
    for (const Case& made :
         {Case{"mkdir out.dat", "'out.dat' (it is a folder)", false},
          Case{"mkfifo out.dat", "'out.dat' (it is a pipe or a device", false},
          Case{"ln -s /dev/null out.dat", "'out.dat' (it is a link to '/dev/null', outside the folder", false},
          Case{"echo 1 > run1.dat; ln -s run1.dat out.dat", "", true},
          Case{"echo 1 > out.dat; ln -s ../in.dat cp.dat; touch ../in.dat", "'cp.dat' (it is a link to", false},
          Case{"ln -s nowhere out.dat", "didn't write 'out.dat'", false},
          Case{": > out.dat", "wrote nothing to 'out.dat'", true},
          Case{"echo 1 > out.dat; sleep 100 &", "had left processes running, which were terminated", true}}) {
        EXPECT_EQ(mProbe->runScript(made.script), made.succeeds) << made.script;
        EXPECT_TRUE(logHolds(made.told)) << made.script << "\n" << logText();
        EXPECT_EQ(mProbe->rereadResults(), QString(made.script).startsWith("echo")) << made.script;
    }
    set(*mProbe, "setOptionalFiles", QStringList{"out.dat"});
    EXPECT_TRUE(mProbe->runScript("true"));
    EXPECT_FALSE(mProbe->runScript("ln -s /dev/null out.dat")) << "optional files, too";
    QFile::remove(path(runFile("out.dat")));
    write(runFile("out.dat"), "3");
    for (const QString& name : {QString(), QString("."), QString("/"), QString("a/"), QString("../out.dat"),
                                QString("out.dat%1x").arg(QChar(QChar::Null))}) {
        mProbe->mReadFile = name;
        EXPECT_FALSE(mProbe->runScript("echo 4 > out.dat"));
        EXPECT_EQ(mProbe->mSteps, QStringList({"handles"})) << name.toStdString();
        EXPECT_TRUE(log().last().contains("A result template has ")) << logText();
        EXPECT_EQ(read(runFile("out.dat")), "3");
        EXPECT_FALSE(mProbe->rereadResults());
    }
}

TEST_F(FExternComputationTest, knowsTheLastRunOfAnEarlierSession) {
    ASSERT_TRUE(mProbe->runScript("echo 1 > out.dat; echo old > cp.dat"));
    ASSERT_FALSE(mProbe->runScript("test ! -e cp.dat && echo 2 > out.dat; exit 7"));
    const auto restart = [this] {
        FManaged::destroy(mProbe);
        mKeep = {};
        mProbe = new FProbe("probe");
        mKeep = FExprBase(mProbe);
    };
    restart();
    EXPECT_EQ(mProbe->getLastRun().stateName(), "failed");
    EXPECT_EQ(mProbe->getLastRun().exitCode, 7);
    EXPECT_EQ(mProbe->getLastRun().cause, FRunRecord::Cause::ExitCode);
    EXPECT_TRUE(mProbe->rereadResults());
    EXPECT_FALSE(logHolds("come from a run that failed"));
    EXPECT_EQ(mProbe->number(), 2);
    EXPECT_TRUE(logHolds("come from a run that failed (failed)"));
    EXPECT_EQ(mProbe->getResults()->getSetUpChanges().size(), 1) << "the arguments";

    const QString stored = "../.earlier/probe.run";
    QByteArray running = read(runFile(stored));
    ASSERT_TRUE(running.contains("\"state\":\"failed\"")) << running.toStdString();
    write(runFile(stored), running.replace("\"state\":\"failed\"", "\"state\":\"running\""));
    restart();
    EXPECT_EQ(mProbe->getLastRun().cause, FRunRecord::Cause::Interrupted);
    write(runFile(stored), "damaged");
    restart();
    EXPECT_EQ(mProbe->getLastRun().stateName(), "failed");
}

TEST_F(FExternComputationTest, keepsTheResultsOfEachDesign) {
    for (const char* name : {"d1", "d2", "baseline"}) {
        const FHistoryBlocker blocker;
        FDesign::create(name);
    }
    const auto choose = [this](const char* name) { set(*mProbe, "setDesign", FExpr<FDesign>(object<FDesign>(name))); };
    for (const char* name : {"d1", "d2"}) {
        choose(name);
        EXPECT_FALSE(mProbe->getResults());
        EXPECT_EQ(mProbe->getLastRun().stateName(), "ready");
        ASSERT_TRUE(mProbe->runScript(QString("echo %1 > out.dat").arg(QString(name).mid(1))));
        EXPECT_TRUE(has(mFolder + "/wing.results/" + name + "/probe/out.dat"));
    }
    choose("d1");
    EXPECT_EQ(mProbe->getLastRun().stateName(), "finished");
    EXPECT_EQ(mProbe->number(), 1);
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(mProbe->number(), 2);
    EXPECT_EQ(object<FDesign>("baseline"), nullptr) << "the folder of runs without a design";
    object<FDesign>("d1")->setName("baseline");
    EXPECT_EQ(object<FDesign>("baseline"), nullptr);

    FManaged::destroy(object<FDesign>("d2"));
    EXPECT_EQ(mProbe->getLastRun().stateName(), "ready") << "there was no run without a design";
    EXPECT_FALSE(mProbe->getResults());
    ASSERT_TRUE(mProbe->runScript("echo 3 > out.dat"));
    EXPECT_TRUE(has(runFile("out.dat")));
    EXPECT_EQ(mProbe->number(), 3);
    set(*mProbe, "setDesign", FExpr<FDesign>());
    EXPECT_EQ(mProbe->number(), 3);
}

TEST_F(FExternComputationTest, reportsAFailedRunWhenItsNumbersAreRequested) {
    mProbe->mReadFile = "other";
    ASSERT_FALSE(mProbe->runScript("echo 1 > out.dat; exit 1"));
    const FExpr<FComputationResults> held = mProbe->getResults();
    ASSERT_FALSE(mProbe->runScript("exit 1"));
    EXPECT_EQ(dynamic_cast<FResultsGeneric*>(held.ptr())->getResultPath(),
              path(mFolder + "/wing.results/baseline/.earlier/probe/"))
        << "they followed";
    ASSERT_FALSE(mProbe->runScript("exit 1"));
    EXPECT_EQ(held->getResultPath(), "") << "the files are gone";
    EXPECT_FALSE(logHolds("come from a run that failed"));
    EXPECT_EQ(dynamic_cast<FResultsGeneric*>(held.ptr())->getData("out.dat")->getElementAt(0, 0), 1);
    EXPECT_TRUE(logHolds("come from a run that failed"));
}

TEST_F(FExternComputationTest, tellsWhyAProgramCanNotBeStarted) {
    set(*mProbe, "setExecutable", QString(""));
    EXPECT_FALSE(mProbe->run());
    EXPECT_TRUE(logHolds("setExecutable"));
    EXPECT_FALSE(mProbe->mSteps.contains("started"));

    set(*mProbe, "setExecutable", QString("cat"));
    set(*mProbe, "setArguments", QStringList{"a", QString("b%1c").arg(QChar(QChar::Null))});
    EXPECT_FALSE(mProbe->run());
    EXPECT_TRUE(logHolds("An argument of the program contains NUL"));
    set(*mProbe, "setArguments", QStringList());
    set(*mProbe, "setStandardInput", QString("../../../wing.mrx"));
    EXPECT_FALSE(mProbe->run());
    EXPECT_TRUE(logHolds("outside the folder"));
    EXPECT_EQ(mProbe->getResults()->getRun()->cause, FRunRecord::Cause::ProgramNotStarted);
}

TEST_F(FExternComputationTest, runsOnceAtATimeAndCanBeCancelled) {
    set(*mProbe, "setArguments", QStringList{"-c", "echo $$ > pid; exec sleep 60"});
    ASSERT_TRUE(mProbe->run(false));
    EXPECT_EQ(mProbe->getLastRun().stateName(), "running");
    EXPECT_FALSE(mProbe->run()) << "one goes on";
    EXPECT_TRUE(logHolds("still in progress"));
    EXPECT_FALSE(mProbe->rereadResults());
    auto* results = dynamic_cast<FResultsGeneric*>(mProbe->getResults().ptr());
    EXPECT_FALSE(results->prepareResults()) << "nothing is read before the end";
    EXPECT_TRUE(mProbe->cancel());
    EXPECT_TRUE(waitUntil([this] { return mProbe->canRun(); }));
    EXPECT_EQ(mProbe->getLastRun().stateName(), "cancelled");
    EXPECT_TRUE(mProbe->wasAborted());
    EXPECT_EQ(mProbe->mSteps, allSteps());
    EXPECT_EQ(log().filter("cancelled").size(), 1) << logText();
    EXPECT_FALSE(mProbe->cancel());

    mProbe->mAtStart = [this] { mProbe->cancel(); };
    EXPECT_FALSE(mProbe->runScript("sleep 60")) << "cancelled by a step before the program";
    EXPECT_EQ(mProbe->getLastRun().stateName(), "cancelled");
    EXPECT_EQ(mProbe->mSteps, allSteps());
}

TEST_F(FExternComputationTest, reportsEachChangeOfState) {
    QStringList states;
    QStringList changed;
    QObject listener;
    QObject::connect(mProbe, &FExternComputation::runChanged, &listener,
                     [&] { states.append(mProbe->getLastRun().stateName() + (mProbe->canRun() ? "" : "...")); });
    QObject::connect(FChanges::instance(), &FChanges::objectChanged, &listener, [&](FManaged* object) {
        changed.append(object == mProbe ? "computation" : object == mProbe->getResults().ptr() ? "results" : "other");
    });
    const auto seen = [&](const QString& script) {
        states.clear();
        mProbe->runScript(script);
        return states.join(' ').toStdString();
    };
    EXPECT_EQ(seen("echo 1 > out.dat"), "writing... running... finished");
    changed.clear();
    EXPECT_EQ(seen("exit 3"), "writing... running... failed");
    changed = changed.mid(2);  // the arguments, and the new results
    EXPECT_EQ(changed.join(" ").toStdString(), "computation results computation results computation results");
    mProbe->mAtStart = [this] { mProbe->cancel(); };
    EXPECT_EQ(seen("sleep 60"), "writing... cancelled") << "before the program starts";
    mProbe->mAtStart = [this] { QTimer::singleShot(0, mProbe, [this] { mProbe->cancel(); }); };
    EXPECT_EQ(seen("sleep 60"), "writing... running... cancelled");
    mProbe->mAtStart = [] {};
    mProbe->mCanWrite = false;
    EXPECT_EQ(seen(""), "writing... failed");
    mProbe->mCanWrite = true;
    set(*mProbe, "setExecutable", QString("no such program"));
    EXPECT_EQ(seen(""), "writing... running... failed") << "its search is part of its start";
    set(*mProbe, "setExecutable", QString(""));
    EXPECT_EQ(seen(""), "writing... failed");
}

TEST_F(FExternComputationTest, runsByTimerFromTheEventLoop) {
    const auto countRuns = [this] { return read(runFile("../../../runs")).size(); };
    set(*mProbe, "setArguments", QStringList{"-c", "echo >> ../../../runs; echo 1 > out.dat"});
    mProbe->triggerRunByTimer();
    mProbe->triggerRunByTimer();
    EXPECT_TRUE(mProbe->canRun()) << "not before control is back in the event loop";
    EXPECT_TRUE(waitUntil([this] { return mProbe->getLastRun().isSuccess(); })) << logText();
    EXPECT_EQ(countRuns(), 1);
    mProbe->triggerRunByTimer();
    EXPECT_TRUE(mProbe->run());
    EXPECT_EQ(countRuns(), 2) << "it can't run when its time comes";
    EXPECT_EQ(logText(), "");

    mProbe->triggerRunByTimer();
    FManaged::destroy(mProbe);
    QCoreApplication::processEvents();
    EXPECT_TRUE(mProbe->canRun());
    EXPECT_EQ(countRuns(), 2);
}

TEST_F(FExternComputationTest, endsARunWhenItLeavesTheModel) {
    set(*mProbe, "setArguments", QStringList{"-c", "exec sleep 60"});
    bool isGone = false;
    mProbe->mAtStart = [guard = std::shared_ptr<bool>(&isGone, [](bool* flag) { *flag = true; })] {};
    ASSERT_TRUE(mProbe->run(false));
    mKeep = FExprBase();
    FHistory::instance()->clear();
    {
        const FHistoryBlocker blocker;
        FManaged::destroy(mProbe);
    }
    EXPECT_TRUE(waitUntil([&isGone] { return isGone; })) << "the run was its last keeper";
    EXPECT_TRUE(logHolds("cancelled"));
}

TEST_F(FExternComputationTest, leavesTheFolderToTheProcessThatHasTheProject) {
    const QString project = write(mFolder + "/wing.mrx", "// merix project, format 1\n");
    QLockFile other(project + ".lock");
    ASSERT_TRUE(other.lock());
    ASSERT_TRUE(FProject::instance()->open(project, false));
    mProbe = new FProbe("probe");
    write(runFile("out.dat"), "9");
    EXPECT_FALSE(mProbe->runScript("echo 5 > out.dat"));
    EXPECT_EQ(mProbe->getLastRun().stateName(), "failed");
    EXPECT_FALSE(dynamic_cast<FResultsGeneric*>(mProbe->getResults().ptr())->getData("out.dat"));
    EXPECT_TRUE(logHolds("The project is open elsewhere (")) << logText();
    EXPECT_FALSE(mProbe->rereadResults());
    EXPECT_TRUE(logHolds("aren't read again: The project is open elsewhere (")) << logText();
    EXPECT_EQ(read(runFile("out.dat")), "9");
    EXPECT_FALSE(has(runFile("stdout.txt")));
    other.unlock();
    EXPECT_TRUE(mProbe->runScript("echo 5 > out.dat")) << "the other has let it go";
    FProject::instance()->close(false);
}

TEST_F(FExternComputationTest, readsFilesOfAnEarlierSessionAgain) {
    EXPECT_FALSE(mProbe->rereadResults());
    EXPECT_TRUE(logHolds("no results"));
    for (const char* number : {"9", "10"}) {
        write(runFile("out.dat"), number);
        ASSERT_TRUE(mProbe->rereadResults());
        EXPECT_EQ(mProbe->number(), atoi(number));
    }
    write(runFile("out.dat"), "11");
    EXPECT_EQ(mProbe->number(), 10) << "not before it is asked for";
    ASSERT_TRUE(QFile::remove(path(runFile("out.dat"))));
    EXPECT_FALSE(mProbe->rereadResults());
    EXPECT_TRUE(logHolds("baseline/probe/': 'out.dat'"));
    EXPECT_EQ(mProbe->mSteps, QStringList());
}

TEST_F(FExternComputationTest, preparesItsResultsOnceAndAgainAfterRefetching) {
    EXPECT_FALSE(mProbe->prepareResults());
    EXPECT_FALSE(mProbe->refetchResults());
    ASSERT_TRUE(mProbe->runScript("echo 1 > out.dat"));
    EXPECT_TRUE(mProbe->prepareResults());
    write(runFile("out.dat"), "2");
    EXPECT_EQ(mProbe->number(), 1) << "read before the file changed";
    EXPECT_TRUE(mProbe->refetchResults());
    write(runFile("out.dat"), "3");
    EXPECT_EQ(mProbe->number(), 3) << "read at the next access";
    write(runFile("out.dat"), "4");
    {
        const FResultsOutOfDateBlocker blocker;
        mProbe->getResults()->setOutOfDate(true);
        EXPECT_FALSE(mProbe->getResults()->isOutOfDate());
    }
    EXPECT_EQ(mProbe->number(), 3) << "it wasn't out of date";
    ASSERT_TRUE(QFile::remove(path(runFile("out.dat"))));
    EXPECT_TRUE(mProbe->refetchResults());
    EXPECT_EQ(logText(), "") << "files are not checked";
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
    EXPECT_EQ(mProbe->getProgram().arguments, QStringList({"-c", "exit 1"}));
    EXPECT_EQ(mProbe->getResults(), results);
    EXPECT_EQ(mProbe->number(), 8);
}

TEST_F(FExternComputationTest, refusesATimeLimitBelowZero) {
    set(*mProbe, "setTimeLimit", double(12.5));
    set(*mProbe, "setTimeLimit", double(-1));
    set(*mProbe, "setTimeLimit", double(qQNaN()));
    set(*mProbe, "setTimeLimit", double(-0.0));
    EXPECT_EQ(mProbe->getProgram().timeLimit, 12.5);
    EXPECT_EQ(log().filter("time limit").size(), 3);
}
