#include "host/core/FMerixCtrl.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/run/FExternComputation.h"
#include "host/script/FAutosave.h"
#include "host/script/FProject.h"
#include "host/script/FProjectLock.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

#include <QAction>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace {

class FProjectFilesTest : public FWindowTest {
 public:
    ~FProjectFilesTest() override { FProject::instance()->close(false); }

    void answer(const QString& text) { dialogs().answers.enqueue(text); }
    void open(const QString& path) {
        window().projectFiles().open(path);
        settle();
    }
    /** Creates something, saves it as p.mrx, and changes it. */
    QString makeUnsaved() {
        EXPECT_TRUE(run("parameter span(1)"));
        answer(folder.path("p"));
        trigger("saveProject");
        EXPECT_FALSE(window().isWindowModified());
        EXPECT_TRUE(run("span.setValue(2)"));
        settle();
        EXPECT_TRUE(window().isWindowModified());
        return folder.path("p.mrx");
    }

    FTestFolder folder;
};

const char* const sleeper =
    "genericIntegrationDefinition d()\n"
    "genericIntegrationConfiguration c() { .setDefinition(d) }\n"
    "genericIntegrationComputation solver() {\n.setConfiguration(c)\n"
    ".setExecutable(\"sleep\")\n.setArguments([\"60\"])\n}";

}  // namespace

TEST_F(FProjectFilesTest, theWindowStartsWithoutPanelsAndShowsThemWithTheFirstObject) {
    EXPECT_TRUE(find("startPage")->isVisible());
    EXPECT_FALSE(window().panels().dockOf("objects")->isVisible());
    EXPECT_EQ(window().windowTitle(), "merix");
    ASSERT_TRUE(run("parameter span(1)"));
    settle();
    EXPECT_FALSE(find("startPage")->isVisible());
    EXPECT_TRUE(window().panels().dockOf("objects")->isVisible());
    EXPECT_EQ(window().windowTitle(), "unnamed project[*] — merix");
    // A panel that the user closed stays closed after a restart.
    window().panels().dockOf("objects")->close();
    answer("Discard");
    EXPECT_TRUE(window().close());
    restart();
    EXPECT_FALSE(window().panels().dockOf("objects")->isVisible());
    trigger("resetLayout");
    EXPECT_TRUE(window().panels().dockOf("objects")->isVisible());
}

TEST_F(FProjectFilesTest, unsavedWorkIsNeverLostWithoutAQuestion) {
    const QString file = makeUnsaved();
    // Undoing the change makes the project equal to its file, and so does redoing what a save followed.
    trigger("undo");
    EXPECT_FALSE(window().isWindowModified());
    trigger("redo");
    EXPECT_TRUE(window().isWindowModified());
    answer("/proc/new.mrx");
    trigger("saveProjectAs");
    EXPECT_TRUE(window().notices().text().startsWith("/proc/new.mrx: it can't be written: "))
        << window().notices().text().toStdString();
    EXPECT_TRUE(window().isWindowModified());

    answer("Cancel");
    trigger("newProject");
    EXPECT_NE(object<FManaged>("span"), nullptr);
    answer("");  // closed without a button
    EXPECT_FALSE(window().close());
    EXPECT_FALSE(window().notices().text().isEmpty()) << "the project still isn't saved";
    answer("Save");
    trigger("newProject");
    EXPECT_TRUE(savedModel().isEmpty());
    EXPECT_TRUE(waitUntil([&] { return window().notices().text().isEmpty(); }));
    EXPECT_TRUE(find("startPage")->isVisible());
    EXPECT_TRUE(folder.read("p.mrx").contains("setValue(2)")) << folder.read("p.mrx").toStdString();
    EXPECT_EQ(find<QListWidget>("recentProjects")->item(0)->data(Qt::UserRole).toString(), file);

    auto* recent = find<QListWidget>("recentProjects");
    QTest::mouseClick(recent->viewport(), Qt::LeftButton, {}, recent->visualItemRect(recent->item(0)).center());
    settle();
    EXPECT_EQ(textOf("span.getValue()").toStdString(), "2");
    ASSERT_TRUE(run("span.setValue(3)"));
    answer("Discard");
    EXPECT_TRUE(window().close());
    EXPECT_TRUE(folder.read("p.mrx").contains("setValue(2)"));
}

TEST_F(FProjectFilesTest, whatASessionLeftIsOfferedWithItsAgeAndDifferences) {
    const QString file = makeUnsaved();
    ASSERT_TRUE(waitUntil([&] { return folder.has("p.mrx.autosave"); }));
    const QByteArray left = folder.read("p.mrx.autosave");
    answer("Discard");
    trigger("newProject");
    folder.write("p.mrx.autosave", left);

    answer("Cancel");
    open(file);
    EXPECT_TRUE(savedModel().isEmpty());
    const QString question = dialogs().questions.last();
    EXPECT_TRUE(question.contains("just now")) << question.toStdString();
    EXPECT_TRUE(question.contains("setValue(2)") && question.contains("setValue(1)")) << question.toStdString();
    answer("Recover the unsaved work");
    open(file);
    EXPECT_EQ(textOf("span.getValue()").toStdString(), "2");
    EXPECT_TRUE(window().isWindowModified());
    trigger("saveProject");
    EXPECT_FALSE(window().isWindowModified());
    EXPECT_TRUE(folder.read("p.mrx").contains("setValue(2)"));
}

TEST_F(FProjectFilesTest, workThatWasNeverSavedIsOfferedAfterACrash) {
    const QByteArray home = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", folder.path().toLocal8Bit());
    const auto left = [this](int number) { return QString("merix/unnamed-%1.mrx.autosave").arg(number); };
    FProject::instance()->keepUnnamed(true);
    ASSERT_TRUE(run("parameter span(7)"));
    ASSERT_TRUE(waitUntil([&] { return folder.has(left(1)); }));
    const QByteArray work = folder.read(left(1));
    for (const int number : {4, 5, 6}) {
        folder.write(left(number), work);
    }
    FProjectLock session;  // that still goes on
    session.acquire(folder.path("merix/unnamed-6.mrx"));
    answer("Discard");
    trigger("newProject");
    settle();
    EXPECT_FALSE(folder.has(left(1))) << "it was given up";
    const auto open = [this](const QString& choice) {
        auto* recent = find<QListWidget>("recentProjects");
        answer(choice);
        QTest::mouseClick(recent->viewport(), Qt::LeftButton, {}, recent->visualItemRect(recent->item(0)).center());
        settle();
    };
    ASSERT_EQ(find<QListWidget>("recentProjects")->count(), 2);
    open("Throw it away");
    ASSERT_EQ(find<QListWidget>("recentProjects")->count(), 1);
    // What can't be read leaves the present project as it is.
    const QString kept = left(folder.has(left(4)) ? 4 : 5);
    folder.write(kept, "a note");
    open("Recover it");
    EXPECT_TRUE(window().notices().text().startsWith("The unsaved work couldn't be read: "));
    EXPECT_FALSE(window().isWindowModified());
    folder.write(kept, work);
    open("Recover it");
    EXPECT_EQ(textOf("span.getValue()"), "7");
    EXPECT_TRUE(window().isWindowModified());
    answer(folder.path("p"));
    trigger("saveProject");
    EXPECT_TRUE(folder.read("p.mrx").contains("span"));
    EXPECT_FALSE(folder.has(left(4)) || folder.has(left(5)));
    FProject::instance()->keepUnnamed(false);
    qputenv("XDG_STATE_HOME", home);
}

TEST_F(FProjectFilesTest, filesThatCantBeUsedAreReportedInTheWindow) {
    folder.write("damaged.mrx", "// merix project, format 1\n\nparameter a(1)\nnonsense b()\n");
    open(folder.path("damaged.mrx"));
    EXPECT_TRUE(window().notices().text().startsWith("Parts of damaged.mrx"))
        << window().notices().text().toStdString();
    ASSERT_TRUE(run("parameter kept(1)"));
    answer("Discard");
    open(folder.path("missing.mrx"));
    EXPECT_TRUE(window().notices().text().startsWith("missing.mrx couldn't be opened: "))
        << window().notices().text().toStdString();
    EXPECT_NE(object<FManaged>("kept"), nullptr);
    EXPECT_FALSE(window().projectFiles().executeScript(folder.path("missing.merix")));
    EXPECT_FALSE(window().projectFiles().executeScript(folder.write("bad.merix", "nonsense(")));
    EXPECT_TRUE(window().notices().text().contains("bad.merix"));
}

TEST_F(FProjectFilesTest, aRunKeepsTheProjectOpenAndIsAskedAboutAtTheEnd) {
    ASSERT_TRUE(run(sleeper));
    answer(folder.path("p"));
    trigger("saveProject");
    trigger("run");
    auto* solver = object<FExternComputation>("solver");
    ASSERT_TRUE(waitUntil([&] { return solver->getLastRun().state == FRunRecord::State::Running; }));
    trigger("newProject");
    EXPECT_NE(object<FManaged>("solver"), nullptr);
    EXPECT_FALSE(window().notices().text().isEmpty());
    answer("Keep running");
    EXPECT_FALSE(window().close());
    // Meanwhile everything else is possible.
    ASSERT_TRUE(run("parameter span(1)"));
    trigger("undo");
    answer("Stop and quit");
    EXPECT_TRUE(window().close());
    trigger("stop");
    ASSERT_TRUE(waitUntil([&] { return solver->canRun(); }));
    EXPECT_EQ(solver->getLastRun().state, FRunRecord::State::Cancelled);
}

TEST_F(FProjectFilesTest, aScriptIsStoppedBetweenItsStatementsAndByClosingTheWindow) {
    ASSERT_TRUE(run("parameter span(1)"));
    const QString endless =
        folder.write("endless.merix", "n = 1\nwhile (true) { n = n + 1; span.setValue(n) }\nspan.setValue(-1)\n");
    QTimer::singleShot(200, &window(), [this] {
        EXPECT_FALSE(action("run")->isEnabled());
        QTest::mouseClick(find<QToolBar>("actionBar")->widgetForAction(action("stop")), Qt::LeftButton);
    });
    EXPECT_FALSE(window().projectFiles().executeScript(endless));
    const int reached = textOf("span.getValue()").toInt();
    EXPECT_GT(reached, 1) << "what was done remains, as one step";
    trigger("undo");
    EXPECT_EQ(textOf("span.getValue()"), "1");

    QTimer::singleShot(200, &window(), [this] {
        answer("Stop the script and quit");
        trigger("quit");
        EXPECT_TRUE(window().isVisible()) << "not in the middle of a statement";
        answer("Discard");
    });
    EXPECT_FALSE(window().projectFiles().executeScript(endless));
    EXPECT_TRUE(waitUntil([&] { return !window().isVisible(); }));
}

TEST_F(FProjectFilesTest, theNumberOfProblemsIsAlwaysVisible) {
    ASSERT_TRUE(run("genericIntegrationComputation solver()"));
    ASSERT_TRUE(waitUntil([&] { return find<QToolButton>("problemCount")->text() != "No problems"; }));
    const QString count = find<QToolButton>("problemCount")->text();
    EXPECT_TRUE(window().panels().dockOf("problems")->windowTitle().contains(count.section(' ', 0, 0)));
    ASSERT_TRUE(run("destroy(solver)"));
    EXPECT_TRUE(waitUntil([&] { return find<QToolButton>("problemCount")->text() == "No problems"; }));
}

TEST_F(FProjectFilesTest, aNameWithoutSuffixGetsThatOfTheFilter) {
    FWindowUserInterface interface(window());
    QTimer::singleShot(0, [this] {
        auto* dialog = find<QFileDialog>("saveFile");
        auto* name = dialog->findChild<QLineEdit*>();
        EXPECT_EQ(name->text(), "start.lodm");
        name->setText("chain");
        press(name, Qt::Key_Return);
    });
    EXPECT_EQ(interface.askSaveFile("Export", folder.path("start.lodm"), "Set-ups (*.lodm)"),
              folder.path("chain.lodm"));
}

TEST_F(FProjectFilesTest, ageIsInWords) {
    const QDateTime now = QDateTime::currentDateTime();
    EXPECT_EQ(FProjectFiles::ageOf(now), "just now");
    EXPECT_EQ(FProjectFiles::ageOf(now.addSecs(-61)), "1 minute ago");
    EXPECT_EQ(FProjectFiles::ageOf(now.addSecs(-3000)), "50 minutes ago");
    EXPECT_TRUE(FProjectFiles::ageOf(now.addDays(-1)).startsWith("yesterday, "));
    EXPECT_TRUE(FProjectFiles::ageOf(now.addDays(-30)).startsWith(now.addDays(-30).toString("yyyy-MM-dd")));
}

TEST_F(FProjectFilesTest, anExampleIsOpenedAsACopy) {
    ASSERT_TRUE(FProjectFiles::getExamples().contains("cantilever"));
    for (const char* copy : {"cantilever", "cantilever-2"}) {
        answer(folder.path());
        window().projectFiles().openExample("cantilever");
        settle();
        EXPECT_TRUE(folder.has(QString(copy) + "/cantilever.inp"));
        EXPECT_EQ(FMerixCtrl::instance()->getProjectFile(), folder.path(QString(copy) + "/cantilever.mrx"));
        EXPECT_FALSE(window().isWindowModified());
        EXPECT_NE(object<FExternComputation>("calculix"), nullptr);
    }
    // Not in a folder that can't be written to.
    answer("/proc");
    window().projectFiles().openExample("cantilever");
    EXPECT_TRUE(window().notices().text().contains("/proc")) << window().notices().text().toStdString();
    EXPECT_NE(object<FExternComputation>("calculix"), nullptr);
}
