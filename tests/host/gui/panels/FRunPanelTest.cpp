#include "host/core/FMerixCtrl.h"
#include "host/gui/base/FListView.h"
#include "host/gui/panels/FRunModel.h"
#include "host/gui/panels/FRunPanel.h"
#include "host/gui/panels/FRunTail.h"
#include "host/gui/panels/FTableModel.h"
#include "host/gui/panels/FTablePanel.h"
#include "host/gui/text/FOutputDocument.h"
#include "host/gui/text/FOutputViewer.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/run/FExternComputation.h"
#include "host/script/FProject.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/chainOfThree.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLabel>
#include <QProgressBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>

namespace {

/** A computation that runs a line of the shell; its output file has one value. */
const char* const setUp = R"(
genericIntegrationResultsFile out() {
    .setFileName("out.txt")
    .setContent("speed = 1.5")
    .setValues([["speed", 0, 0, "speed =", First, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition d() { .setFiles([out]) }
genericIntegrationConfiguration c() { .setDefinition(d) }
genericIntegrationComputation solver() { .setConfiguration(c) .setExecutable("sh") }
)";

class FRunPanelTest : public FWindowTest {
 public:
    FRunPanelTest() {
        FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx"));
        EXPECT_TRUE(FWindowTest::run(setUp));
        openPanel("runs");
    }

    FRunModel& model() { return window().panels().get<FRunPanel>().model(); }
    FExternComputation* solver() { return object<FExternComputation>("solver"); }
    void start(const QString& command) {
        EXPECT_TRUE(FWindowTest::run(QString("solver.setArguments([\"-c\", \"%1\"])").arg(command)));
        trigger("run");
    }
    void waitForEnd() {
        EXPECT_TRUE(waitUntil([&] { return solver()->canRun(); }));
        settle();
    }
    QString cell(int row, FRunModel::Column column) { return model().index(row, column).data().toString(); }
    QString details() { return find<QTextBrowser>("runText")->toPlainText(); }
    bool isPossible(const QString& button) { return find<QToolButton>(button)->isEnabled(); }

    FTestFolder folder;
};

}  // namespace

TEST_F(FRunPanelTest, eachRunOfAScriptKeepsWhatItSaid) {
    EXPECT_TRUE(
        FWindowTest::run("solver.setArguments([\"-c\", \"echo speed = 2 > out.txt\"])\nsolver.run()\n"
                         "solver.setArguments([\"-c\", \"echo speed = 3D-01 > out.txt\"])\nsolver.run()"));
    settle();
    ASSERT_EQ(model().rowCount(), 2);
    EXPECT_EQ(rowsOf(*find<QTreeView>("objectTree")->model()).filter("resultsGenInt").size(), 1) << "the present ones";
    EXPECT_EQ(cell(0, FRunModel::saidColumn), "1 value, 1 suspicious: speed is followed by D-01 (out.txt:1)");
    EXPECT_EQ(cell(1, FRunModel::saidColumn), "1 value");
    EXPECT_EQ(model().tablesOf(1).value(0)->getElementAt(0, 0), 2);
}

TEST_F(FRunPanelTest, eachRunIsARowThatSaysHowItEnded) {
    const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(model().rowCount(), 0);
    start("echo speed = 2.5D-01 > out.txt");
    waitForEnd();
    EXPECT_EQ(cell(0, FRunModel::runColumn), "solver 1");
    EXPECT_EQ(cell(0, FRunModel::stateColumn), "finished");
    EXPECT_EQ(cell(0, FRunModel::saidColumn), "1 value, 1 suspicious: speed is followed by D-01 (out.txt:1)");
    EXPECT_TRUE(cell(0, FRunModel::tookColumn).endsWith(" s"));

    window().panels().show("console");
    start("echo started; echo; echo 'ERROR: no such material' >&2; exit 3");
    waitForEnd();
    ASSERT_EQ(model().rowCount(), 2);
    EXPECT_EQ(cell(0, FRunModel::stateColumn), "failed, exit code 3");
    EXPECT_TRUE(find("runList")->isVisible()) << "the panel comes to the front";
    EXPECT_EQ(cell(0, FRunModel::saidColumn), "ERROR: no such material (stderr.txt:1)");
    EXPECT_TRUE(details().contains("exit code 3")) << details().toStdString();
    EXPECT_TRUE(details().contains("Templates: out.txt")) << details().toStdString();
    // The place in the words of the program leads to the file.
    emit find<QTextBrowser>("runText")->anchorClicked(
        QUrl(QUrl::fromLocalFile(model().folderOf(0) + "stderr.txt").toString() + "#1"));
    auto* document = qobject_cast<FOutputDocument*>(window().documents().currentWidget());
    ASSERT_NE(document, nullptr);
    EXPECT_TRUE(document->viewer().getVisibleText().contains("no such material"));

    // The files of the first run are those of the run before; of older runs none are left.
    EXPECT_TRUE(QFile::exists(model().folderOf(1) + "out.txt"));
    trigger("run");
    waitForEnd();
    EXPECT_EQ(model().folderOf(2), "");
    find<FListView>("runList")->setCurrentIndex(model().index(2, 0));
    EXPECT_TRUE(details().contains("Later runs have replaced")) << details().toStdString();
    EXPECT_FALSE(isPossible("openRunFolder"));
    EXPECT_TRUE(find<QToolButton>("openRunFolder")->toolTip().contains("Later runs have replaced"));
    EXPECT_TRUE(isPossible("runAgain"));
    // Its numbers are kept, those of the failed run aren't there.
    find<QToolButton>("showRunResults")->click();
    settle();
    EXPECT_TRUE(find<QLabel>("resultState")->text().startsWith("Earlier run: solver 1, "));
    find<FListView>("runList")->setCurrentIndex(model().index(1, 0));
    EXPECT_FALSE(isPossible("showRunResults"));
    EXPECT_TRUE(find<QToolButton>("showRunResults")->toolTip().endsWith("No numbers of this run are kept"));
}

TEST_F(FRunPanelTest, aRunIsWatchedAndStopped) {
    ASSERT_TRUE(FWindowTest::run("solver.setTimeLimit(60)"));
    start("echo working; while test ! -e go; do sleep 0.05; done; echo going on; sleep 60");
    auto* tail = find<FRunTail>("runOutput");
    find<QTabWidget>("runDetails")->setCurrentWidget(tail);
    ASSERT_TRUE(waitUntil([&] { return tail->toPlainText() == "working\n"; }));
    EXPECT_EQ(cell(0, FRunModel::stateColumn), "running");
    EXPECT_EQ(find<QProgressBar>("runProgress")->maximum(), 60);
    EXPECT_FALSE(isPossible("runAgain"));
    EXPECT_TRUE(find("objectTree")->isEnabled());
    QFile go(solver()->getWorkingPath() + "go");
    ASSERT_TRUE(go.open(QIODevice::WriteOnly));
    ASSERT_TRUE(waitUntil([&] { return tail->toPlainText().contains("going on"); }));
    find<QToolButton>("stopRun")->click();
    EXPECT_EQ(cell(0, FRunModel::stateColumn), "stopping");
    EXPECT_FALSE(isPossible("stopRun"));
    waitForEnd();
    EXPECT_EQ(cell(0, FRunModel::stateColumn), "cancelled");
    EXPECT_EQ(window().findChild<QProgressBar*>("runProgress"), nullptr);
    find<QToolButton>("runAgain")->click();
    ASSERT_TRUE(waitUntil([&] { return model().rowCount() == 2; }));
    // The computation may leave the model during its run.
    ASSERT_TRUE(FWindowTest::run("destroy(solver)"));
    ASSERT_TRUE(waitUntil([&] { return cell(0, FRunModel::stateColumn) == "cancelled"; }));
    EXPECT_FALSE(isPossible("runAgain"));
}

TEST_F(FRunPanelTest, aChainShowsWhatEachOfItsMembersDoes) {
    const QAbstractItemModelTester tester(&model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto rows = [this] {
        QStringList lines;
        for (int row = 0; row < model().rowCount(); ++row) {
            lines.append(cell(row, FRunModel::runColumn) + ": " + cell(row, FRunModel::stateColumn));
        }
        return lines.join("; ").toStdString();
    };
    const auto selected = [this] { return find<FListView>("runList")->currentIndex().row(); };
    ASSERT_TRUE(FWindowTest::run(QString(chainOfThree) + "\nfirst.setArguments([\"-c\", \"while test ! -e go; do sleep "
                                                         "0.05; done; echo v 3 > first.txt\"])"));
    window().showObject(object<FManaged>("third"));
    auto* first = object<FExternComputation>("first");
    trigger("run");
    ASSERT_TRUE(waitUntil([&] { return first->getLastRun().start.isValid(); }));
    settle();
    EXPECT_EQ(rows(), "third: waiting; second: waiting; first 1: running");
    EXPECT_EQ(find<QLabel>("runState")->text(), "third: waiting");
    EXPECT_EQ(selected(), 2) << "the one whose output is being written";
    EXPECT_EQ(window().findChildren<QProgressBar*>("runProgress").size(), 1);
    auto* list = find<FListView>("runList");
    list->setCurrentIndex(model().index(1, 0));
    EXPECT_FALSE(isPossible("stopRun")) << "nothing of it is in progress";
    EXPECT_FALSE(isPossible("openRunFolder"));
    EXPECT_TRUE(details().contains("after the computations whose results it uses")) << details().toStdString();
    list->setCurrentIndex(model().index(0, 0));
    EXPECT_TRUE(isPossible("stopRun"));
    find<QToolButton>("stopRun")->click();
    ASSERT_TRUE(waitUntil([&] { return object<FExternComputation>("third")->canRun(); }));
    settle();
    EXPECT_EQ(rows(), "third 3: not run: upstream failed; second 2: not run: upstream failed; first 1: cancelled");

    ASSERT_TRUE(FWindowTest::run("first.setArguments([\"-c\", \"echo v 3 > first.txt\"])\nfirst.run()"));
    trigger("run");
    ASSERT_TRUE(waitUntil([&] { return object<FExternComputation>("third")->canRun(); }));
    settle();
    EXPECT_EQ(rows().substr(0, rows().find("; first 4")), "third 6: finished; second 5: finished; first: up to date");
    list->setCurrentIndex(model().index(2, 0));
    EXPECT_TRUE(details().contains("its last run succeeded")) << details().toStdString();
    EXPECT_FALSE(details().contains("Later runs")) << details().toStdString();
    EXPECT_TRUE(isPossible("showRunResults"));
    EXPECT_FALSE(isPossible("openRunFolder"));

    // The setting is an action of the menu.
    EXPECT_TRUE(action("suppliersFirst")->isChecked());
    trigger("suppliersFirst");
    EXPECT_FALSE(action("suppliersFirst")->isChecked());
    const int before = model().rowCount();
    trigger("run");
    ASSERT_TRUE(waitUntil([&] { return object<FExternComputation>("third")->canRun(); }));
    settle();
    EXPECT_EQ(model().rowCount(), before + 1);
}

TEST_F(FRunPanelTest, theStoredRunOfAProjectIsShownWhenItIsOpened) {
    trigger("saveProject");
    start("echo speed = 4 > out.txt");
    waitForEnd();
    trigger("saveProject");
    trigger("newProject");
    EXPECT_EQ(model().rowCount(), 0);
    ASSERT_TRUE(FProject::instance()->open(folder.path("p.mrx"), false));
    settle();
    ASSERT_EQ(model().rowCount(), 1);
    EXPECT_EQ(cell(0, FRunModel::runColumn), "solver, earlier");
    EXPECT_EQ(cell(0, FRunModel::stateColumn), "finished");
    find<QToolButton>("showRunResults")->click();
    settle();
    auto* results = dynamic_cast<FTablePanel*>(window().documents().currentWidget());
    ASSERT_NE(results, nullptr) << "the files of the run are read again";
    EXPECT_EQ(results->model().index(0, 1).data().toString(), "4");
    start("echo speed = 5 > out.txt");
    waitForEnd();
    EXPECT_EQ(cell(0, FRunModel::runColumn), "solver 1");
    EXPECT_EQ(model().rowCount(), 2);
}
