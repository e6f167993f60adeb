#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FQuotedText.h"
#include "host/gui/base/FListView.h"
#include "host/gui/panels/FTableModel.h"
#include "host/gui/panels/FTablePanel.h"
#include "host/gui/text/FOutputDocument.h"
#include "host/gui/text/FOutputViewer.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/run/FExternComputation.h"
#include "host/run/FResultsGeneric.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace {

const char* const setUp = R"(
genericIntegrationCommandFile deck() { .setFileName("deck.inp") .setContent("<entry>length</entry>") }
genericIntegrationResultsFile out() {
    .setFileName("out.txt")
    .setValues([["speed", 0, 0, "speed =", First, "FDouble", "", 0, NULL],
                ["drag", 0, 0, "drag =", First, "FDouble", "", 0, NULL],
                ["lift", 90, 0, "lift =", First, "FDouble", "", 0, NULL],
                ["mean", 0, 0, "", First, "FDouble", "", 1, 2]])
}
genericIntegrationResultsFile more() {
    .setFileName("more.txt")
    .setValues([["mass", 0, 0, "mass =", First, "FDouble", "", 0, NULL]])
}
genericIntegrationDefinition d() { .addEntry("length", 2) .setFiles([deck, out, more]) }
genericIntegrationConfiguration c() { .setDefinition(d) }
genericIntegrationComputation solver() { .setConfiguration(c) .setExecutable("sh") }
)";

class FTablePanelTest : public FWindowTest {
 public:
    FTablePanelTest() {
        FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx"));
        EXPECT_TRUE(FWindowTest::run(setUp));
        settle();
    }

    void runProgram(const QString& speed) {
        const QString text = "printf 'speed = " + speed + "\\ndrag = 1.25D+01\\nrow 3\\nrow 5\\n' > out.txt; " +
                             "echo mass = 7 > more.txt";
        ASSERT_TRUE(FWindowTest::run("solver.setArguments([\"-c\", " + quoteText(text) + "])\nsolver.run()"));
        settle();
    }
    FTablePanel& panel() { return *find<FTablePanel>("results"); }
    FListView& view() { return *find<FListView>("resultTable"); }
    QModelIndex index(const QString& name, int column = 0) {
        const FTableModel& model = panel().model();
        const QModelIndexList found = model.match(model.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
        EXPECT_FALSE(found.isEmpty()) << name.toStdString();
        return found.value(0).siblingAtColumn(column);
    }
    /** The cells of a value, with a bar between them. */
    std::string row(const QString& name) {
        QStringList cells;
        for (int column = 0; column < panel().model().columnCount(); ++column) {
            cells.append(index(name, column).data().toString());
        }
        return cells.join(QLatin1Char('|')).toStdString();
    }
    QString state() { return find<QLabel>("resultState")->text(); }

    FTestFolder folder;
};

}  // namespace

TEST_F(FTablePanelTest, aNumberHasItsPlaceAndItsReason) {
    runProgram("2.5");
    trigger("showResults");
    const QAbstractItemModelTester tester(&panel().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(row("speed"), "speed|2.5|2.5|line 1, column 9|");
    EXPECT_EQ(row("drag"), "drag|1.25|1.25|line 2, column 8|is followed by D+01");
    EXPECT_EQ(row("lift"), "lift|NaN|||the anchor \"lift =\" isn't in the file");
    EXPECT_EQ(row("mean"), "mean|4|5|line 4, column 5|");
    const QModelIndex mean = index("mean");
    ASSERT_EQ(panel().model().rowCount(mean), 2);
    EXPECT_EQ(panel().model().index(1, 1, mean).data().toString(), "5");
    EXPECT_EQ(state().toStdString(),
              "Finished. 5 values, 1 suspicious, 1 without a number: lift: the anchor \"lift =\" isn't in the file "
              "(out.txt).");
    EXPECT_FALSE(index("speed").data(Qt::BackgroundRole).isValid());
    EXPECT_NE(index("drag").data(Qt::BackgroundRole), index("lift").data(Qt::BackgroundRole));

    const QRect place = view().visualRect(index("drag", 1));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, place.center());
    auto* document = qobject_cast<FOutputDocument*>(window().documents().currentWidget());
    ASSERT_NE(document, nullptr);
    ASSERT_TRUE(waitUntil([&] { return document->viewer().text().isIndexed(); }));
    EXPECT_TRUE(find<QLabel>("placeReason")->text().startsWith("\"drag\" is followed by D+01. Only"));
    EXPECT_TRUE(document->viewer().getVisibleText().contains("drag = 1.25D+01"));
}

TEST_F(FTablePanelTest, anOpenDocumentFollowsTheRunsWithoutTakingTheFocus) {
    runProgram("2.5");
    trigger("showResults");
    openPanel("console");
    const QWidget* focus = QApplication::focusWidget();
    runProgram("3.5");
    ASSERT_TRUE(waitUntil([&] { return index("speed", 1).data().toString() == "3.5"; }));
    EXPECT_EQ(QApplication::focusWidget(), focus);
    EXPECT_EQ(window().documents().count(), 1);
    // A changed input makes them those of an earlier set-up; undo takes that back.
    ASSERT_TRUE(FWindowTest::run("c.setEntryValue(\"length\", 3)"));
    settle();
    EXPECT_TRUE(state().startsWith("Finished, of an earlier set-up (length was 2, is 3).")) << state().toStdString();
    trigger("undo");
    EXPECT_TRUE(state().startsWith("Finished. ")) << state().toStdString();
    ASSERT_TRUE(FWindowTest::run("destroy(solver)"));
    settle();
    EXPECT_EQ(window().documents().count(), 0);
}

TEST_F(FTablePanelTest, anyTwoRunsOfTheSessionAreCompared) {
    for (const char* speed : {"2", "2.5", "5"}) {
        runProgram(speed);
    }
    trigger("showResults");
    auto* shown = find<QComboBox>("shownRun");
    const auto show = [&](int choice) {
        shown->setCurrentIndex(choice);
        emit shown->activated(choice);
        settle();
    };
    ASSERT_EQ(shown->count(), 3) << "the present results and the two runs before";
    show(2);
    EXPECT_EQ(row("speed"), "speed|2|2|line 1, column 9|");
    EXPECT_TRUE(state().startsWith("Earlier run: solver 1, ")) << state().toStdString();
    auto* runs = find<QMenu>("runsToCompare");
    emit runs->aboutToShow();
    ASSERT_EQ(runs->actions().size(), 4);
    EXPECT_FALSE(runs->actions().first()->isVisible()) << "only the present run has one before it";
    EXPECT_TRUE(runs->actions().at(2)->text().startsWith("solver 3, "));
    runs->actions().last()->trigger();
    EXPECT_EQ(row("speed"), "speed|2|2.5|-0.5 (-20 %)|2|line 1, column 9|");
    runProgram("7");
    EXPECT_EQ(row("speed"), "speed|2|2.5|-0.5 (-20 %)|2|line 1, column 9|") << "both stay";
    EXPECT_EQ(shown->currentIndex(), 3);
    show(0);
    EXPECT_EQ(row("speed"), "speed|7|2.5|+4.5 (+180 %)|7|line 1, column 9|");
    EXPECT_TRUE(state().startsWith("Finished. "));
}

TEST_F(FTablePanelTest, twoRunsAreComparedAndExported) {
    runProgram("2");
    trigger("compareResults");
    EXPECT_FALSE(find<QToolButton>("compareResults")->isChecked()) << "there is no run before";
    runProgram("2.5");
    const int objects = FObjectManager::instance()->getNames().size();
    trigger("compareResults");
    EXPECT_EQ(row("speed"), "speed|2.5|2|+0.5 (+25 %)|2.5|line 1, column 9|");
    EXPECT_EQ(index("drag", 3).data().toString(), "0");
    EXPECT_EQ(FObjectManager::instance()->getNames().size(), objects) << "nothing stays in the model";
    view().setCurrentIndex(index("speed"));
    press(&view(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Name,Value,Run before,Difference,In the file,Place,What is unusual\n"
              "speed,2.5,2,+0.5 (+25 %),2.5,\"line 1, column 9\",\n");
    find<QToolButton>("compareResults")->click();
    EXPECT_EQ(row("speed"), "speed|2.5|2.5|line 1, column 9|");

    runProgram("5");
    auto* runs = find<QMenu>("runsToCompare");
    emit runs->aboutToShow();
    const QList<QAction*> actions = runs->actions();
    ASSERT_EQ(actions.size(), 4) << "the run before, a line, and the two runs other than this one";
    EXPECT_TRUE(actions.last()->text().startsWith("solver 1, ")) << actions.last()->text().toStdString();
    actions.last()->trigger();
    EXPECT_EQ(panel().model().headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(), "solver 1");
    EXPECT_EQ(row("speed"), "speed|5|2|+3 (+150 %)|5|line 1, column 9|");
    runProgram("2.5");
    EXPECT_EQ(row("speed"), "speed|2.5|2|+0.5 (+25 %)|2.5|line 1, column 9|") << "the chosen run stays";
    find<QToolButton>("compareResults")->click();
    auto* files = find<QComboBox>("resultFile");
    files->setCurrentIndex(1);
    emit files->activated(1);
    EXPECT_EQ(index("mass", 1).data().toString(), "7");

    dialogs().answers.enqueue(folder.path("r.csv"));
    trigger("exportResults");
    const QByteArray csv = folder.read("r.csv");
    EXPECT_TRUE(csv.startsWith("out.txt\nName,Value,In the file,Place,What is unusual\n")) << csv.toStdString();
    EXPECT_TRUE(csv.contains("\nspeed,2.5,2.5,"));
    EXPECT_TRUE(csv.contains("more.txt\n") && csv.contains("\nmass,7,7,"));
}
