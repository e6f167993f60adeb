#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FStateColor.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/window/FPanelTable.h"
#include "host/gui/window/FTextsDialog.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/chainOfThree.h"
#include "tests/support/window/FVisualCheck.h"
#include "tests/support/window/FWindowTest.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QToolButton>

#include <functional>

namespace {

const QSize smallest(1024, 700);

/** At three font sizes and in two palettes. */
class VisualTest : public FWindowTest, public testing::WithParamInterface<std::tuple<double, FTheme::Appearance>> {
 public:
    VisualTest() : mUsual(QApplication::font()) {
        QFont font = mUsual;
        font.setPointSizeF(std::get<0>(GetParam()) * mUsual.pointSizeF());
        QApplication::setFont(font);
        FTheme::choose(std::get<1>(GetParam()));
        restart();
        window().resize(smallest);
    }
    ~VisualTest() override {
        QApplication::setFont(mUsual);
        FTheme::choose(FTheme::Appearance::Desktop);
    }

    void check(QWidget& widget, const QString& what) {
        settle();
        const QStringList faults = FVisualCheck(widget).faults();
        EXPECT_TRUE(faults.isEmpty()) << what.toStdString() << ":\n" << faults.join('\n').toStdString();
        const QString folder = qEnvironmentVariable("MERIX_PICTURES");
        if (!folder.isEmpty()) {
            const auto [scale, appearance] = GetParam();
            widget.grab().save(QStringLiteral("%1/%2-%3-%4.png")
                                   .arg(folder, what)
                                   .arg(scale)
                                   .arg(appearance == FTheme::Appearance::Dark ? "dark" : "light"));
        }
    }

    /** A result template with a suspicious number, one that is missing, a report, and all rows of its form. */
    void showTemplate() {
        ASSERT_TRUE(
            run("genericIntegrationResultsFile sample() {\n"
                ".setContent(\"total force: 1.000000E+02 12\nfrequency = 1.25D+01\nlift: none\") "
                ".setFileName(\"beam.dat\") .setNumberSeparator(false) .setSpacesAndTabsSeparator(true)\n"
                ".setValues([[\"force\", 0, 0, \"force:\", First, \"FDouble\", \"\", 0, NULL],"
                "[\"f\", 0, 0, \"frequency =\", First, \"FDouble\", \"\", 0, NULL],"
                "[\"lift\", 0, -1, \"lift:\", First, \"FFileName\", \"tecplot\", 0, NULL],"
                "[\"drag\", 7, 3, \"drag:\", First, \"FDouble\", \"\", 0, NULL]]) }\n"
                "beam.setFiles([sample])"));
        window().showTemplate(object<FManaged>("sample"), 0, 0);
        ASSERT_TRUE(waitUntil([this] { return find("templateReports")->isVisible(); }));
        check(window(), "resultTemplate");
        ASSERT_TRUE(run("beam.setFiles([])\ndestroy(sample)"));
    }

    /** A template with a problem and its values beside it, then with a button over a number, and its search. */
    void showTemplatePage() {
        ASSERT_TRUE(
            run("genericIntegrationCommandFile deck() { .setFileName(\"deck.inp\") .setContent(\"*NODE\n"
                "1, <entry>Geometry|span</entry>, 0.125\nthickness = 2.5\n<entry>Geometry|spam</entry>\n\") }\n"
                "beam.setFiles([deck])"));
        window().showTemplate(object<FManaged>("deck"), 0, 0);
        auto* values = find<QToolButton>("showValues");
        values->click();
        ASSERT_TRUE(waitUntil([&] { return find("templateReports")->isVisible(); }));
        check(window(), "template");
        values->click();
        auto* text = find<QPlainTextEdit>("templateText");
        QTextCursor number(text->document()->findBlockByNumber(2));
        QTest::mouseMove(text->viewport(), QPoint(1, 1));
        QTest::mouseMove(text->viewport(), text->cursorRect(number).center() + QPoint(text->fontMetrics().height(), 0));
        settle();
        EXPECT_TRUE(find("addEntryButton")->isVisible());
        check(window(), "number");
        press(text, Qt::Key_H, Qt::ControlModifier);
        settle();
        check(*find("searchDialog"), "search");
        find("searchDialog")->close();
        QApplication::setActiveWindow(&window());
        EXPECT_EQ(object<FGenIntFile>("deck")->getPlainContent().count('\t'), 0);
    }

    /** A run with a suspicious number and one that is missing, one that failed, and one in progress. */
    void showRunsAndDocuments() {
        FMerixCtrl::instance()->setProjectFile(mFolder.path("p.mrx"));
        const QString start = "solver.setArguments([\"-c\", \"%1\"])\nsolver.run()";
        ASSERT_TRUE(
            run("genericIntegrationResultsFile out() { .setFileName(\"out.txt\") .setValues([\n"
                "[\"frequency\", 0, 0, \"f =\", First, \"FDouble\", \"\", 0, NULL],\n"
                "[\"lift\", 0, 0, \"l =\", First, \"FDouble\", \"\", 0, NULL],\n"
                "[\"mass\", 90, 0, \"m =\", First, \"FDouble\", \"\", 0, NULL]]) }\n"
                "genericIntegrationDefinition d() { .setFiles([out]) }\n"
                "genericIntegrationConfiguration c() { .setDefinition(d) }\n"
                "solver.setConfiguration(c)\nsolver.setExecutable(\"sh\")"));
        EXPECT_TRUE(run(start.arg("echo l = -0.5 > out.txt; echo f = 1.25D+01 >> out.txt")));
        run(start.arg("echo ERROR: no such material EL; exit 3"));
        EXPECT_TRUE(run(start.arg("echo l = 0.25 > out.txt; echo f = 1.5D+01 >> out.txt")));
        trigger("showResults");
        trigger("compareResults");
        check(window(), "results");
        window().showFile({FPathManager::instance()->getResultPath({}, {}) + "out.txt", 2, 5, 3,
                           "\"frequency\" is followed by D+01"});
        settle();
        find("findInFile")->setFocus();
        find<QToolButton>("findInFile")->click();
        check(window(), "file");
        ASSERT_TRUE(run("solver.setTimeLimit(60)\nsolver.setArguments([\"-c\", \"echo working; sleep 60\"])"));
        trigger("run");
        openPanel("runs");
        ASSERT_TRUE(waitUntil([] { return object<FExternComputation>("solver")->getLastRun().start.isValid(); }));
        check(window(), "running");
        trigger("stop");
        ASSERT_TRUE(waitUntil([] { return object<FExternComputation>("solver")->canRun(); }));
    }

    /** A chain with a failure upstream, and a link that passes a box. */
    void showChain() {
        QApplication::setActiveWindow(&window());
        ASSERT_TRUE(run(chainOfThree));
        ASSERT_TRUE(
            run("conf3.setEntryValue(\"note\", inputFile(first.getResults().getResultFileName(\"file\")))\n"
                "first.setExecutable(\"no such program\")"));
        run("third.run(true)");
        FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("second_connector"))});
        settle();
        openPanel("chain");
        check(window(), "chains");
        openPanel("runs");
        check(window(), "chainRuns");
    }

    /** In all sizes, with items in every area, and empty; then the dialog that makes one. */
    void showConnector() {
        ASSERT_TRUE(
            run("genericIntegrationCommandFile deck() { .setFileName(\"case.inp\") .setContent(\"a\\nb\\nc\") }\n"
                "d.setFiles([out, deck])\nd.addEntry(\"Exports|mesh\", inputFile(\"/a/folder/of/meshes/mesh.msh\"))\n"
                "d.addEntry(\"Exports|tip\", geometryExport(\"a rather long name.csv\"))\n"
                "d.addEntry(\"Imports|flow\", resultsFileName(\"flow.vtk\"))\n"
                "softwareConnector con() { .setComputation(solver) }"));
        for (const char* size : {"Large", "Medium", "Small"}) {
            ASSERT_TRUE(run(QStringLiteral("con.setItemSize(%1)\nsolver.openSoftwareConnector()").arg(size)));
            check(window(), QStringLiteral("connector%1").arg(size));
        }
        ASSERT_TRUE(run("Runner.openSoftwareConnector()"));
        check(window(), "emptyConnector");
        trigger("newSetUp");
        auto* dialog = find<QDialog>("newSetUpDialog");
        check(*dialog, "newSetUp");
        dialog->reject();
        settle();
    }

 private:
    FTestFolder mFolder;
    QFont mUsual;
};

}  // namespace

TEST_P(VisualTest, everythingIsReadableAndReachable) {
    check(window(), "start");
    ASSERT_TRUE(
        run("genericIntegrationDefinition beam() { .addEntry(\"Geometry|span\", 2.4) }\n"
            "genericIntegrationConfiguration values() { .setDefinition(beam) }\n"
            "genericIntegrationComputation solver() { .setConfiguration(values) }\n"
            "parameter span(2.4)\nparameter twice(2 * span)"));
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("solver"))});
    settle();
    EXPECT_EQ(window().size(), smallest);
    for (const FPanelRow& row : FPanelTable::rows()) {
        openPanel(QString::fromLatin1(row.id));
        check(window(), QString::fromLatin1(row.id));
    }
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("beam"))});
    openPanel("editor");
    check(window(), "definition");
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("solver"))});
    showTemplate();
    settle();
    showTemplatePage();
    showRunsAndDocuments();
    showConnector();
    showChain();
    FTextsDialog texts("Preview", {{"a.inp", "1"}, {"b.inp", "2"}}, &window());
    texts.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&texts));
    check(texts, "texts");
    texts.close();
    QMenu menu;
    window().panels().get<FObjectTreeWgt>().fillMenu(menu);
    menu.findChild<QMenu*>("newObjectMenu")->actions().last()->trigger();
    check(*find("newConfiguration"), "newConfiguration");
    find<QDialog>("newConfiguration")->reject();
    trigger("tutorial");
    check(*find("manual"), "manual");
    find<QDialog>("manual")->close();
    FSelectionSet::instance()->set({FExpr<FObject>(object<FManaged>("solver"))});
    settle();
    find<QAction>("addEntry")->trigger();
    find<QComboBox>("newEntryType")->setCurrentIndex(1);
    find<QLineEdit>("newEntryPath")->clear();
    press(find<QLineEdit>("newEntryPath"), Qt::Key_Return);
    check(*find<QDialog>("newEntry"), "new entry");
}

INSTANTIATE_TEST_SUITE_P(, VisualTest,
                         testing::Combine(testing::Values(1.0, 1.5, 2.0),
                                          testing::Values(FTheme::Appearance::Light, FTheme::Appearance::Dark)));
