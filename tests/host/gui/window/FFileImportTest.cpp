#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FFileImport.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/lodm/FCustomComputation.h"
#include "host/script/FProject.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/chainOfThree.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemView>
#include <QDockWidget>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QStatusBar>
#include <QTextDocumentFragment>

namespace {

class FFileImportTest : public FWindowTest {
 public:
    FFileImportTest() {
        FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx"));
        EXPECT_TRUE(run(chainOfThree));
        EXPECT_TRUE(object<FCustomComputation>("third")->exportSetUp(folder.path("part.lodm"), true));
        FProject::instance()->create();
        settle();
    }
    ~FFileImportTest() override { FProject::instance()->close(false); }

    void import(const QString& file) {
        dialogs().answers.enqueue(folder.path(file));
        trigger("importSetUps");
    }
    /** As the user reads it. */
    std::string notice() {
        return QTextDocumentFragment::fromHtml(window().notices().text()).toPlainText().toStdString();
    }
    void expectNothing() {
        EXPECT_EQ(savedModel(), "");
        EXPECT_TRUE(FHistory::instance()->getLabels().isEmpty());
    }

    FTestFolder folder;
};

TEST_F(FFileImportTest, aFileComesInAsOneStepAndIsShown) {
    import("part.lodm");
    EXPECT_EQ(window().statusBar()->currentMessage(), "3 set-ups imported from part.lodm: first, second, third.")
        << notice() << logText();
    EXPECT_EQ(FHistory::instance()->getLabels(), QStringList{"Software Connector Import"});
    EXPECT_EQ(window().documents().count(), 1) << "the first connector";
    EXPECT_EQ(FSelectionSet::instance()->getObjects().value(0).ptr(), object<FObject>("first"));
    EXPECT_EQ(object<FManaged>("second_connector")->getClass(), "FSoftwareConnector");

    import("part.lodm");
    EXPECT_EQ(notice(),
              "3 set-ups imported from part.lodm: first_01, second_01, third_01. "
              "Names that were taken got a number at their end. Show the messages");
    trigger("undo");
    EXPECT_EQ(window().documents().count(), 1);
    trigger("undo");
    EXPECT_EQ(savedModel(), "");
    EXPECT_EQ(window().documents().count(), 0);
}

TEST_F(FFileImportTest, whatCannotBeImportedIsSaidWithItsPlaceAndWhatToDo) {
    const QByteArray whole = folder.read("part.lodm");
    folder.write("cut.lodm", whole.left(whole.indexOf("genericIntegrationComputation second")));
    import("cut.lodm");
    EXPECT_EQ(notice(),
              "1 set-up imported from cut.lodm: first. The file isn't complete: the set-up of \"def2\" has no "
              "computation and no last line in the file. What it has is imported; export it again if the rest was "
              "lost. Undo takes all of it back. Show the messages");
    const int line = whole.left(whole.lastIndexOf("<?xml", whole.indexOf("name=\"def2\""))).count('\n') + 1;
    EXPECT_TRUE(logHolds(QString("cut.lodm:%1:1: ").arg(line))) << logText();
    window().panels().dockOf("log")->close();
    emit find<QLabel>("noticeText")->linkActivated("#");
    EXPECT_TRUE(window().panels().dockOf("log")->isVisible());
    trigger("undo");
    EXPECT_EQ(savedModel(), "");

    folder.write("other.lodm", "no part of a set-up\n");
    import("other.lodm");
    EXPECT_TRUE(QString::fromStdString(notice()).startsWith("No set-up came from other.lodm: ")) << notice();
    folder.write("empty.lodm", "");
    import("empty.lodm");
    EXPECT_EQ(notice(), "empty.lodm holds no set-up. \"Export\" in a connector writes files with set-ups.");
    import("none.lodm");
    EXPECT_TRUE(QString::fromStdString(notice()).contains("can't be imported: No such file")) << notice();
    folder.write("part.txt", whole);
    import("part.txt");
    EXPECT_EQ(notice(), "part.txt can't be imported: only files of these kinds can: LODM (*.lodm).");
    import("");
    expectNothing();
}

TEST_F(FFileImportTest, aFileDroppedOnTheTreeIsImported) {
    ASSERT_TRUE(run("parameter span(1)"));
    settle();
    auto* tree = find("objects");
    const auto drop = [&](const QString& file) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(folder.path(file))});
        const QPoint place = tree->rect().center();
        QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(tree, &enter);
        if (enter.isAccepted()) {
            QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(tree, &event);
        }
        settle();
        return enter.isAccepted();
    };
    folder.write("a.txt", "x");
    drop("a.txt");
    EXPECT_TRUE(drop("part.lodm"));
    EXPECT_NE(object<FCustomComputation>("third"), nullptr);
    EXPECT_EQ(FHistory::instance()->getLabels().size(), 2);
    EXPECT_FALSE(find<QAbstractItemView>("objectTree")->viewport()->acceptDrops()) << "or the event never gets here";
}

}  // namespace
