#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FProblemWatch.h"
#include "host/gui/panels/FLogModel.h"
#include "host/gui/panels/FUndoModel.h"
#include "host/run/FExternComputation.h"
#include "host/script/FCmdInput.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/chainOfThree.h"
#include "tests/support/window/FWindowTest.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDockWidget>
#include <QScrollBar>
#include <QTreeView>

namespace {

class ListPanelsTest : public FWindowTest {
 public:
    QAbstractItemView& list(const QString& name) { return *find<QAbstractItemView>(name); }
    void click(QAbstractItemView& view, int row) {
        const QModelIndex index = view.model()->index(row, 0);
        view.scrollTo(index);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
        settle();
    }
    static QString selected() { return FSelectionSet::instance()->getObjects().value(0).toString(); }
};

}  // namespace

TEST_F(ListPanelsTest, aClickInTheHistoryGoesToTheStateAfterAStep) {
    FUndoModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const char* statement : {"parameter a(1)", "parameter b(2)", "a.setValue(3)"}) {
        ASSERT_TRUE(run(statement));
    }
    openPanel("history");
    const QString whole = savedModel();
    click(list("undoList"), 1);
    EXPECT_NE(object<FManaged>("a"), nullptr);
    EXPECT_EQ(object<FManaged>("b"), nullptr);
    EXPECT_EQ(list("undoList").currentIndex().row(), 1);
    EXPECT_TRUE(list("undoList").model()->index(3, 0).data().toString().contains("undone"));
    click(list("undoList"), 3);
    EXPECT_EQ(savedModel(), whole);
    click(list("undoList"), 0);
    EXPECT_TRUE(savedModel().isEmpty());
}

TEST_F(ListPanelsTest, aProblemAndAMessageLeadToTheirObject) {
    ASSERT_TRUE(run("genericIntegrationComputation solver()\nparameter span(1)"));
    openPanel("problems");
    ASSERT_TRUE(waitUntil([&] { return list("problemList").model()->rowCount() > 0; }));
    click(list("problemList"), 0);
    EXPECT_EQ(selected(), "solver");

    openPanel("log");
    FLogMsg::warning("span", "something is odd", "Look at it");
    ASSERT_TRUE(waitUntil([&] { return list("logList").model()->rowCount() > 0; }));
    const int last = list("logList").model()->rowCount() - 1;
    // Looking at a computation that never ran has created no folder, which would have been reported.
    EXPECT_EQ(last, 0);
    EXPECT_EQ(list("logList").model()->index(last, FLogModel::textColumn).data().toString().toStdString(),
              "something is odd. Look at it");
    click(list("logList"), last);
    press(&list("logList"), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "warning\tspan\tsomething is odd. Look at it\n");
    press(&list("logList"), Qt::Key_Return);
    settle();
    EXPECT_EQ(selected(), "span");
}

TEST_F(ListPanelsTest, theLogStaysAtItsEndAndReadsAsText) {
    openPanel("log");
    QAbstractItemView& view = list("logList");
    const auto add = [&view](const QString& message, int count) {
        const int before = view.model()->rowCount();
        for (int number = 0; number < count; ++number) {
            FLogMsg::warning("source", message, "Look at it");
        }
        ASSERT_TRUE(waitUntil([&] { return view.model()->rowCount() >= before + count; }));
        settle();
    };
    const QScrollBar* bar = view.verticalScrollBar();
    add("It is odd.", 40);
    EXPECT_EQ(view.model()->index(0, FLogModel::textColumn).data().toString(), "It is odd. Look at it");
    ASSERT_GT(bar->maximum(), 0);
    EXPECT_EQ(bar->value(), bar->maximum());
    window().resizeDocks({window().panels().dockOf("log")}, {view.height() / 2}, Qt::Vertical);
    settle();
    add("again", 1);
    EXPECT_EQ(bar->value(), bar->maximum()) << "also in a panel that has become smaller";
    view.scrollToTop();
    add("once more", 1);
    EXPECT_EQ(bar->value(), 0) << "what is being read stays";
    EXPECT_GE(find<QTreeView>("logList")->columnWidth(FLogModel::kindColumn),
              view.sizeHintForIndex(view.model()->index(0, FLogModel::kindColumn)).width());
}

TEST_F(ListPanelsTest, aRunOfASupplierSolvesTheProblemOfItsClient) {
    FTestFolder folder;
    FMerixCtrl::instance()->setProjectFile(folder.path("p.mrx"));
    ASSERT_TRUE(run(chainOfThree));
    openPanel("problems");
    const auto isReported = [this] {
        const QAbstractItemModel& model = *list("problemList").model();
        return !model.match(model.index(0, 1), Qt::DisplayRole, "conf2").isEmpty();
    };
    ASSERT_TRUE(waitUntil(isReported));
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("first"))});
    trigger("run");
    EXPECT_TRUE(waitUntil([&] { return !isReported(); }));
    ASSERT_TRUE(waitUntil([] { return object<FExternComputation>("first")->canRun(); }));
}

TEST_F(ListPanelsTest, problemsComeBackWithAnObjectWhoseDestructionFailed) {
    ASSERT_TRUE(run("genericIntegrationComputation solver()"));
    const std::shared_ptr<FProblemWatch> watch = FProblemWatch::get();
    const auto hasProblems = [&watch] { return !watch->problems().isEmpty(); };
    ASSERT_TRUE(waitUntil(hasProblems));
    FCmdInput::setPause([&] { EXPECT_TRUE(waitUntil([&] { return !hasProblems(); })); });
    EXPECT_FALSE(run("if (true) {\n destroy(solver)\n nonsense\n}"));
    FCmdInput::setPause({});
    EXPECT_NE(object<FManaged>("solver"), nullptr);
    EXPECT_TRUE(waitUntil(hasProblems));
}

TEST_F(ListPanelsTest, theLogKeepsTheLastMessages) {
    FLogModel model;
    const int count = FLogModel::most + 100;
    for (int i = 0; i < count; ++i) {
        FLogMsg::info("source", QString::number(i), {});
    }
    ASSERT_TRUE(waitUntil([&] { return model.rowCount() > 0; }));
    EXPECT_LE(model.rowCount(), FLogModel::most);
    EXPECT_EQ(model.message(model.rowCount() - 1).message, QString::number(count - 1));
}
