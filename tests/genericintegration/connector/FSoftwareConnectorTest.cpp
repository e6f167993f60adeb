#include "genericintegration/connector/FSceneFurniture.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/setup/FGenIntCompSignalRapper.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FIni.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/script/FProject.h"
#include "tests/genericintegration/connector/FConnectorTest.h"
#include "tests/support/window/doubleClick.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>
#include <QTreeWidget>

namespace {

class FSoftwareConnectorTest : public FConnectorTest {};

}  // namespace

TEST_F(FSoftwareConnectorTest, itsItemsAndTabsFollowTheObjects) {
    open();
    EXPECT_EQ(items(), allItems);
    EXPECT_EQ(tabs(), (QStringList{"Overview", "case.inp", "more.inp", "out.txt"}));
    const QString before = savedModel();
    ASSERT_TRUE(
        run("input.setFileName(\"a&b.inp\")\nd.addEntry(\"Exports|mesh\", inputFile(\"mesh.msh\"))\n"
            "destroy(output)"));
    {
        const FUserStep step("rename");
        object<FManaged>("solver")->setName("ccx");
    }
    EXPECT_EQ(items(), "a&b.inp mesh.msh more.inp | ccx");
    EXPECT_EQ(tabs(), (QStringList{"Overview", "a&&b.inp", "more.inp"})) << "a single one would be an access key";
    // An entry of another type gets another kind of item.
    ASSERT_TRUE(run("c.setEntryValue(\"Exports|mesh\", resultsFileName(\"mesh.vtk\"))"));
    EXPECT_EQ(items(), "a&b.inp more.inp | mesh.vtk | ccx");
    for (int step = 0; step < 5; ++step) {
        trigger("undo");
    }
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_EQ(items(), allItems);
}

TEST_F(FSoftwareConnectorTest, itIsInFrontWhenItsProjectIsOpened) {
    open();
    ASSERT_TRUE(FProject::instance()->save(folder.path("p.mrx")));
    trigger("newProject");
    EXPECT_EQ(window().documents().count(), 0);
    window().projectFiles().open(folder.path("p.mrx"));
    settle();
    EXPECT_EQ(window().documents().count(), 1);
    EXPECT_EQ(items(), allItems);
    EXPECT_EQ(connector().count(), 4);
}

TEST_F(FSoftwareConnectorTest, aTemplateThatIsShownFromElsewhereIsShownInItsTab) {
    open();
    emit connector().tabCloseRequested(2);
    window().showTemplate(object<FManaged>("other"), 1, 1);
    settle();
    EXPECT_EQ(window().documents().count(), 1) << "there is no second page of it";
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "more.inp");
}

TEST_F(FSoftwareConnectorTest, eachTemplateHasOneTabAlsoIfItIsShownByTheStepThatMakesIt) {
    ASSERT_TRUE(run(QString(setUp).remove("softwareConnector con() { .setComputation(solver) }\ndestroy(Runner)\n"
                                          "destroy(configurationGenInt)\ndestroy(definitionGenInt)\n") +
                    "solver.openSoftwareConnector()\n"));
    settle();
    EXPECT_EQ(object<FSoftwareConnector>("solver_connector")->count(), 4);
}

TEST_F(FSoftwareConnectorTest, destroyingItTakesTheSetUpAndUndoBringsBackAll) {
    open();
    const QString before = savedModel();
    ASSERT_TRUE(run("destroy(con)"));
    settle();
    EXPECT_TRUE(savedModel().isEmpty()) << savedModel().toStdString();
    trigger("undo");
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_EQ(items(), allItems);
    EXPECT_EQ(window().documents().count(), 1) << "its page is back";
    EXPECT_EQ(tabs(), (QStringList{"Overview", "case.inp", "more.inp", "out.txt"}));
    trigger("redo");
    settle();
    EXPECT_TRUE(savedModel().isEmpty());
    // The computation takes the connector along, too.
    trigger("undo");
    ASSERT_TRUE(run("destroy(solver)"));
    settle();
    EXPECT_TRUE(savedModel().isEmpty()) << savedModel().toStdString();
}

TEST_F(FSoftwareConnectorTest, deletingItAsksAboutARunAndAboutOthersThatUseItsDefinition) {
    open();
    ASSERT_TRUE(
        run("genericIntegrationConfiguration c2() { .setDefinition(d) }\nsolver.setArguments([\"-c\", \"sleep 60\"])"));
    scene().runComputation();
    ASSERT_TRUE(waitUntil([this] { return connector().isLocked(); }));
    const QString before = savedModel();
    window().showObject(&connector());
    connector().getView()->setFocus();
    settle();
    EXPECT_FALSE(action("delete")->isEnabled()) << "what is selected is shown elsewhere";
    find("objectTree")->setFocus();
    dialogs().answers << "Cancel"
                      << "Delete";
    trigger("delete");
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_TRUE(dialogs().questions.value(0).contains("solver is running") && dialogs().questions[0].contains("c2"));
    trigger("delete");
    EXPECT_EQ(object<FManaged>("con"), nullptr);
    EXPECT_EQ(dialogs().questions.size(), 2);
    trigger("undo");
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    ASSERT_TRUE(waitUntil([] { return object<FExternComputation>("solver")->canRun(); }));
    EXPECT_FALSE(connector().isLocked()) << "the run ended while the connector was away";
    EXPECT_TRUE(item("solver")->isEnabled());
}

TEST_F(FSoftwareConnectorTest, aRunThatGoesOnLocksAConnectorThatIsOpenedLater) {
    ASSERT_TRUE(
        run("genericIntegrationDefinition plan()\n"
            "genericIntegrationConfiguration values() { .setDefinition(plan) }\n"
            "genericIntegrationComputation late() {\n.setConfiguration(values)\n.setExecutable(\"sleep\")\n"
            ".setArguments([\"60\"])\n}"));
    auto& late = *object<FGenIntComputation>("late");
    late.guiRun();
    ASSERT_TRUE(waitUntil([&] { return !late.canRun(); }));
    FIni().setValue("SoftwareConnector/lastItemSize", 4);
    EXPECT_TRUE(late.doubleClickedInTree());
    settle();
    auto& opened = *object<FSoftwareConnector>("late_connector");
    EXPECT_EQ(opened.getItemSizeStr(), "Small") << "as the user chose last";
    ASSERT_TRUE(run("genericIntegrationComputation stated()\nstated.openSoftwareConnector()"));
    EXPECT_EQ(object<FSoftwareConnector>("stated_connector")->getItemSizeStr(), "Medium") << "made by a statement";
    EXPECT_FALSE(opened.widget(0)->isEnabled());
    EXPECT_FALSE(opened.getScene()->objectItems().value(0)->isEnabled());
    late.cancel();
    ASSERT_TRUE(waitUntil([&] { return late.canRun(); }));
    EXPECT_TRUE(opened.widget(0)->isEnabled());
    EXPECT_TRUE(opened.getScene()->objectItems().value(0)->isEnabled());
}

TEST_F(FSoftwareConnectorTest, tabsAreClosedAndOpenedAgain) {
    open();
    EXPECT_EQ(connector().tabBar()->tabButton(0, QTabBar::RightSide), nullptr) << "nobody could open it again";
    emit connector().tabCloseRequested(1);
    EXPECT_EQ(tabs(), (QStringList{"Overview", "more.inp", "out.txt"}));
    doubleClick(connector().getView()->viewport(), centreOf("case.inp"));
    EXPECT_EQ(tabs().last(), "case.inp");
    EXPECT_EQ(connector().tabText(connector().currentIndex()), "case.inp");
    EXPECT_FALSE(find<QPushButton>("ButtonOverview")->isChecked());
    EXPECT_TRUE(FSelectionSet::instance()->contains(object<FManaged>("c"))) << "its values are in view";
    find<QPushButton>("ButtonOverview")->click();
    EXPECT_EQ(connector().currentIndex(), 0);
    // In a small window its top is seen, also when it is shown again.
    window().resize(1024, 700);
    openPanel("runs");
    settle();
    const QScrollBar* bar = connector().getView()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), bar->minimum());
    connector().setCurrentIndex(1);
    settle();
    connector().gotoOverview();
    settle();
    EXPECT_EQ(bar->value(), bar->minimum());
}

TEST_F(FSoftwareConnectorTest, textsAndFilesAreAddedWithoutADialog) {
    open();
    const QString before = savedModel();
    connector().addInputTemplateFromString("y = 1", "added.inp");
    EXPECT_EQ(tabs().last(), "added.inp");
    expectOneStep(before, "Add input template");
    trigger("undo");
    EXPECT_EQ(connector().addOutputTemplateFromString("z = 1", "added.dat")->getPlainContent(), "z = 1");
    expectOneStep(before, "Add output template");
    trigger("undo");
    EXPECT_EQ(connector().addOutputFile("wing.vtk")->getFileNameText(), "wing.vtk");
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | wing.vtk | solver");
    expectOneStep(before, "Add import");
}

TEST_F(FSoftwareConnectorTest, itIsLockedDuringARunAndFindsNewResultFiles) {
    open();
    connector().scanForResults(true);
    EXPECT_EQ(items(), allItems) << "the scan is off";
    QToolButton* scan = scene().findChild<FSceneFurniture*>()->scanButton();
    scan->click();
    bool wasLocked = false;
    QObject::connect(object<FGenIntComputation>("solver")->getSignalRapper(),
                     &FGenIntCompSignalRapper::genIntRunStarted,
                     [&] { wasLocked = !item("solver")->isEnabled() && !connector().widget(1)->isEnabled(); });
    scene().runComputation();
    ASSERT_TRUE(waitUntil([] { return object<FExternComputation>("solver")->canRun(); }));
    EXPECT_TRUE(wasLocked);
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | new.csv | solver") << "plain texts are no result files";
    EXPECT_TRUE(item("solver")->isEnabled() && connector().widget(1)->isEnabled());
    connector().scanForResults(true);
    EXPECT_EQ(items(), "case.inp more.inp | out.txt | new.csv | solver") << "it is shown already";
}

TEST_F(FSoftwareConnectorTest, itIsLinkedToResultsOfAnother) {
    open();
    ASSERT_TRUE(
        run("genericIntegrationResultsFile flow() { .setFileName(\"flow.dat\") }\n"
            "genericIntegrationDefinition d2() { .setFiles([flow]) }\n"
            "genericIntegrationConfiguration c2() { .setDefinition(d2) }\n"
            "genericIntegrationComputation mesher() { .setConfiguration(c2) }\n"
            "softwareConnector con2() { .setComputation(mesher) }\ndestroy(Runner)"));
    const QString before = savedModel();
    const auto choose = [this](int top, int child) {
        QTimer::singleShot(0, [this, top, child] {
            auto* tree = find<QTreeWidget>("connectTree");
            ASSERT_GT(tree->topLevelItemCount(), top);
            tree->setCurrentItem(tree->topLevelItem(top)->child(child));
            find<QDialog>("connectConnector")->accept();
        });
    };
    choose(0, 0);
    connector().connectOtherConnector();
    EXPECT_TRUE(savedModel().contains("mesher.getResults().getResultTemplateName(\"flow.dat\")"));
    EXPECT_NE(item("flow.dat"), nullptr) << "called after the template that it is linked to";
    expectOneStep(before, "Add input file");
    window().showObject(object<FManaged>("c"));
    settle();
    ASSERT_TRUE(run("mesher.setExecutable(\"sh\")"));
    settle();
    EXPECT_FALSE(logHolds("there is no object to apply it to")) << "results are only not there yet";
    // The other way round would be a circle.
    object<FGenIntComputation>("mesher")->openSoftwareConnector();
    settle();
    const QString linked = savedModel();
    choose(0, 0);
    object<FSoftwareConnector>("con2")->connectOtherConnector();
    settle();
    EXPECT_EQ(savedModel().toStdString(), linked.toStdString()) << "nothing of the link stays";
    EXPECT_TRUE(find<QLabel>("noticeText")->text().contains("Infinite recursion detected"));
    EXPECT_EQ(object<FSoftwareConnector>("con2")->getScene()->objectItems().size(), 2);
}
