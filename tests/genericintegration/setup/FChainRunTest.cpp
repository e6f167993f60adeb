#include "host/core/FChanges.h"
#include "host/core/FIni.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserStep.h"
#include "host/run/FComputationResults.h"
#include "host/run/FRunRecord.h"
#include "host/run/FRunSettings.h"
#include "host/run/FSetUpCheck.h"
#include "tests/genericintegration/setup/FChainTest.h"
#include "tests/support/waitUntil.h"

namespace {

class FChainRunTest : public FChainTest {
 protected:
    FChainRunTest() { FIni::setFile(path("settings.ini")); }
    ~FChainRunTest() override { FIni::setFile({}); }

    /** Runs "third" with its suppliers; returns which of the chain were run, and their states if one isn't finished. */
    QString runThird() {
        std::vector<std::shared_ptr<const FRunRecord>> before;
        for (const QString& name : mChain) {
            before.push_back(computation(name)->getLastRecord());
        }
        mIsSuccess = computation("third")->runWithSuppliers();
        QStringList runs;
        for (int i = 0; i < mChain.size(); ++i) {
            if (computation(mChain[i])->getLastRecord() != before[static_cast<std::size_t>(i)]) {
                runs.append(mChain[i]);
            }
        }
        return runs.join(' ');
    }
    QString states() const {
        QStringList words;
        for (const QString& name : mChain) {
            words.append(computation(name)->getLastRun().stateName());
        }
        return words.join(", ");
    }
    static bool waitForEnd() {
        return waitUntil([] { return computation("third")->canRun() && computation("first")->canRun(); });
    }

    const QStringList mChain{"first", "second", "third"};
    bool mIsSuccess = false;
};

TEST_F(FChainRunTest, whatHasTheNumbersOfThePresentSetUpIsNotRunAgain) {
    EXPECT_EQ(runThird(), "first second third");
    EXPECT_TRUE(mIsSuccess);
    EXPECT_EQ(numbers(mChain), "3 9 10");
    EXPECT_EQ(runThird(), "third") << "what is asked for is run in any case";
    ASSERT_TRUE(run("conf1.setEntryValue(\"x\", 4)"));
    EXPECT_EQ(runThird(), "first second third");
    EXPECT_EQ(numbers(mChain), "4 16 17");
    // The other sign gives another file to the second, but no other number to the third.
    ASSERT_TRUE(run("conf1.setEntryValue(\"x\", -4); conf3.setEntryValue(\"note\", 1)"));
    EXPECT_EQ(runThird(), "first second third");
    ASSERT_TRUE(run("second.setTimeLimit(100); second.setArguments([\"-c\", \"echo v 2 > second.txt\"])"));
    EXPECT_EQ(runThird(), "second third");
    EXPECT_EQ(numbers(mChain), "-4 2 3");
    ASSERT_TRUE(QDir(path("study.results/baseline/first")).removeRecursively());
    EXPECT_EQ(runThird(), "first third") << "the files are gone, but come back as they were";
    EXPECT_FALSE(logHolds("error")) << logText();
    ASSERT_TRUE(run("conf1.setEntryValue(\"x\", 5)\nprint(second.run())"));
    EXPECT_EQ(numbers({"first"}), "-4") << "in a script nothing runs unrequested";
    EXPECT_EQ(textOf("apart.getState()"), "ready") << "no other client is run";
}

TEST_F(FChainRunTest, filesAndGeometryBelongToTheSetUp) {
    const QString program = write("first.sh", "#!/bin/sh\n. ./in.txt; echo v $x > first.txt\n", QFile::ExeOwner);
    write("edge.csv", "0,0,0");
    ASSERT_TRUE(run("first.setExecutable(\"" + program + R"("); first.setArguments([])
point p(1); curve edge("edge.csv"); entityGroup group() { .setEntities([p, edge]) }
def1.addEntry("geometry", geometryExport("g.csv", 0, [group])))"));
    EXPECT_EQ(runThird(), "first second third") << logText();
    EXPECT_EQ(runThird(), "third");
    ASSERT_TRUE(run("p.setX(2)"));
    EXPECT_EQ(runThird(), "first third");
    write("edge.csv", "0,0,1");
    EXPECT_EQ(runThird(), "first third");
    write("first.sh", "#!/bin/sh\necho v 5 > first.txt\n");
    EXPECT_EQ(runThird(), "first second third");
    EXPECT_EQ(numbers(mChain), "5 25 26");

    // A file that is only handed on, but only if the program writes it.
    ASSERT_TRUE(
        run("def1.addEntry(\"mesh\", resultsFileName(\"m.dat\")).addEntry(\"never\", resultsFileName(\"n.dat\"))"));
    write("first.sh", "#!/bin/sh\necho v 5 > first.txt; echo 1 > m.dat");
    EXPECT_EQ(runThird(), "first third");
    EXPECT_EQ(runThird(), "third");
    ASSERT_TRUE(QFile::remove(path("study.results/baseline/first/m.dat")));
    EXPECT_EQ(runThird(), "first third");
    EXPECT_TRUE(has("study.results/baseline/first/m.dat"));
}

TEST_F(FChainRunTest, theRowsOfAMeanMayComeFromAnotherRun) {
    ASSERT_TRUE(
        run("genericIntegrationResultsFile out4() { .setFileName(\"o.txt\");\n.setValues([[\"v\", 0, 0, \"\", First, "
            "\"FDouble\", \"\", 1, first.getResults().getDataAt(\"v\", 0) - 1]]) }\n"
            "def5.setFiles([out4]); alone.setExecutable(\"sh\"); alone.setArguments([\"-c\", \"seq 5 > o.txt\"])"));
    EXPECT_TRUE(computation("alone")->runWithSuppliers());
    EXPECT_EQ(computation("first")->getLastRun().stateName(), "finished");
    EXPECT_EQ(numbers({"alone"}), "4.5");
    ASSERT_TRUE(run("first.setExecutable(\"false\"); first.setArguments([])"));
    EXPECT_FALSE(computation("alone")->runWithSuppliers());
    EXPECT_EQ(computation("alone")->getLastRun().stateName(), "not run: upstream failed");
}

TEST_F(FChainRunTest, afterAFailureTheOthersAreNotRun) {
    EXPECT_EQ(runThird(), "first second third");
    ASSERT_TRUE(run("first.setArguments([\"-c\", \"exit 1\"])"));
    EXPECT_EQ(runThird(), "first second third");
    EXPECT_FALSE(mIsSuccess);
    EXPECT_EQ(states(), "failed, not run: upstream failed, not run: upstream failed");
    EXPECT_TRUE(logHolds("third: It was not run: it uses results of \"first\", whose run ended as: failed."))
        << logText();
    EXPECT_EQ(numbers({"third"}), "NaN") << "never those of the run before";
    EXPECT_EQ(read("study.results/baseline/third/third.txt"), "v 10\n") << "whose files stay";

    ASSERT_TRUE(
        run("first.setArguments([\"-c\", \". ./in.txt; echo v $x > first.txt\"])\n"
            "second.setExecutable(\"no-such-program\")\nprint(third.run(true))"));
    EXPECT_EQ(states(), "finished, failed, not run: upstream failed");
    EXPECT_FALSE(computation("third")->run()) << "a single run is started in any case, with what is there";
    EXPECT_EQ(states(), "finished, failed, failed");
}

TEST_F(FChainRunTest, aRunThatNeverBeganLeavesNothing) {
    const auto countResults = [] { return FObjectManager::instance()->getManaged(FComputationResults::null()).size(); };
    ASSERT_TRUE(run("first.setExecutable(\"false\"); first.setArguments([])"));
    runThird();
    EXPECT_EQ(states(), "failed, not run: upstream failed, not run: upstream failed");
    runThird();
    const auto most = countResults();
    runThird();
    runThird();
    EXPECT_EQ(countResults(), most);
}

TEST_F(FChainRunTest, aWindowDoesNotWait) {
    FGenIntComputation* third = computation("third");
    third->guiRun();
    EXPECT_FALSE(third->canRun());
    EXPECT_FALSE(third->runWithSuppliers(false));
    EXPECT_TRUE(logHolds("third: A run is still in progress")) << logText();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(numbers(mChain), "3 9 10");

    ASSERT_TRUE(run("first.setExecutable(\"sleep\"); first.setArguments([\"100\"])"));
    third->guiRun();
    EXPECT_TRUE(third->cancel());
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(states(), "cancelled, not run: upstream failed, not run: upstream failed");

    FRunSettings::setSuppliersFirst(false);
    third->guiRun();
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(states().section(", ", 0, 1), "cancelled, not run: upstream failed");
    EXPECT_NE(third->getLastRun().stateName(), "not run: upstream failed");
}

TEST_F(FChainRunTest, eachMemberSaysWhatIsIntended) {
    QStringList told;
    const auto listening = QObject::connect(FChanges::instance(), &FChanges::objectChanged, [&](FManaged* object) {
        const auto* member = dynamic_cast<FGenIntComputation*>(object);
        const auto plan = member ? member->getPlannedRun() : nullptr;
        const QString state = !member ? QString() : plan ? plan->stateName() : member->getLastRun().stateName();
        if (member && told.filter(member->getName() + ' ').value(0) != member->getName() + ' ' + state) {
            told.prepend(member->getName() + ' ' + state);
        }
    });
    const auto sinceLast = [&told] {
        QStringList since;
        while (!told.isEmpty()) {
            since.append(told.takeLast());
        }
        return since.join(", ");
    };
    runThird();
    EXPECT_EQ(sinceLast(),
              "first waiting, second waiting, third waiting, first writing, first running, first finished, second "
              "writing, second running, second finished, third writing, third running, third finished");
    ASSERT_TRUE(run("second.setArguments([\"-c\", \"exit 1\"])"));
    sinceLast();
    runThird();
    EXPECT_EQ(sinceLast(),
              "first waiting, second waiting, third waiting, first up to date, second writing, second running, second "
              "failed, third not run: upstream failed, first finished");

    // A client that uses both, and of which one fails: the other one is neither run nor marked.
    ASSERT_TRUE(
        run("apart.setExecutable(\"true\")\ndef5.addEntry(\"a\", 0)\ndef5.addEntry(\"b\", 0)\n"
            "conf5.setEntryValue(\"a\", third.getResults().getDataAt(0, 0))\n"
            "conf5.setEntryValue(\"b\", apart.getResults().getDataAt(0, 0))\nalone.setExecutable(\"true\")"));
    sinceLast();
    EXPECT_FALSE(computation("alone")->runWithSuppliers());
    EXPECT_TRUE(
        sinceLast().endsWith("third not run: upstream failed, alone not run: upstream failed, "
                             "first finished, apart ready"));
    QObject::disconnect(listening);
}

TEST_F(FChainRunTest, aRunThatIsCancelledBetweenTwoOthersDoesNotGoOn) {
    FGenIntComputation* first = computation("first");
    QObject::connect(first, &FExternComputation::runChanged, first, [first] {
        if (first->canRun()) {
            EXPECT_TRUE(computation("third")->cancel());
        }
    });
    EXPECT_FALSE(computation("third")->runWithSuppliers());
    EXPECT_EQ(states(), "finished, ready, cancelled");
    EXPECT_TRUE(computation("third")->wasAborted());
    EXPECT_TRUE(computation("third")->canRun());
    EXPECT_FALSE(has("study.results/baseline/third/in.txt"));
}

TEST_F(FChainRunTest, membersMayLeaveMeanwhile) {
    EXPECT_TRUE(computation("third")->runWithSuppliers(false));
    ASSERT_TRUE(run("destroy(second)"));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(computation("first")->getLastRun().stateName(), "finished");
    EXPECT_FALSE(computation("third")->getLastRun().isSuccess());

    ASSERT_TRUE(run("first.setExecutable(\"sleep\"); first.setArguments([\"100\"])\napart.setExecutable(\"true\")"));
    const FExpr<FGenIntComputation> apart(computation("apart"));
    EXPECT_TRUE(apart->runWithSuppliers(false));
    ASSERT_TRUE(run("destroy(apart)"));
    ASSERT_TRUE(waitUntil([] { return computation("first")->canRun(); }));
    EXPECT_EQ(computation("first")->getLastRun().stateName(), "cancelled");
}

TEST_F(FChainRunTest, aCheckRunsNothing) {
    QStringList replaced;
    FSetUpCheck::setSubstituteForRuns([&replaced](const FExternComputation& each) { replaced.append(each.getName()); });
    EXPECT_FALSE(computation("third")->runWithSuppliers());
    FSetUpCheck::setSubstituteForRuns({});
    EXPECT_EQ(replaced, mChain);
}

}  // namespace
