#include "genericintegration/setup/FConnectorRecord.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserStep.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

class FConnectorSetUpTest : public FModelTest {
 protected:
    static FConnectorRecord* connector(const QString& name) { return object<FConnectorRecord>(name); }
    static QString computationOf(const QString& name) { return connector(name)->getComputation().toString(); }
};

/** With a set-up that scripts have made. */
class FOwnedSetUpTest : public FIntegrationTest {};

QStringList namesInModel() {
    QStringList names;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FManaged::null())) {
        names.append(object->getName());
    }
    return names;
}

/** Undo and redo restore both states. */
void expectUndone(const QString& before) {
    const QString after = FModelTest::savedModel();
    ASSERT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(FModelTest::savedModel().toStdString(), before.toStdString());
    ASSERT_TRUE(FHistory::instance()->redo());
    EXPECT_EQ(FModelTest::savedModel().toStdString(), after.toStdString());
    ASSERT_TRUE(FHistory::instance()->undo());
}

}  // namespace

TEST_F(FConnectorSetUpTest, aNewConnectorHasASetUpOfItsOwn) {
    ASSERT_TRUE(run("softwareConnector c()"));
    EXPECT_EQ(namesInModel(), QStringList({"Runner", "definitionGenInt", "configurationGenInt", "c"}));
    EXPECT_EQ(saved(*connector("c")).toStdString(),
              "\nsoftwareConnector c() {\n    .setComputation(Runner);\n    .setItemSize(\"Medium\");\n"
              "    .setResultsPath(\"\");\n}\n");
    EXPECT_EQ(connector("c")->getDefinition(), object<FDefinitionGenInt>("definitionGenInt"));
    EXPECT_EQ(FConnectorInterface::getConnectors(connector("c")->getDefinition()).size(), 1);
    expectUndone({});
    EXPECT_EQ(log(), QStringList());

    const FProjectLoading loading;
    ASSERT_TRUE(run("softwareConnector c()"));
    EXPECT_EQ(namesInModel(), QStringList({"c"})) << "the project brings the rest";
}

TEST_F(FConnectorSetUpTest, noTwoConnectorsHaveOneComputation) {
    ASSERT_TRUE(run("softwareConnector a(); softwareConnector b()"));
    ASSERT_TRUE(run("b.setComputation(Runner)"));
    EXPECT_EQ(computationOf("b"), "Runner_01");
    EXPECT_TRUE(logHolds("FSoftwareConnector: Warning, computation Runner is already set to software connector a"))
        << logText();
    EXPECT_TRUE(logHolds("Setter aborted.")) << logText();
    ASSERT_TRUE(run("a.setComputation(Runner)"));
    EXPECT_EQ(log().filter("already set to software connector a").size(), 2) << "its own isn't taken again";

    ASSERT_TRUE(run("b.setComputation(NULL); a.setComputation(NULL)"));
    EXPECT_EQ(computationOf("b"), "NULL");
    EXPECT_EQ(computationOf("a"), "Runner") << "one connector without a computation is enough";
    EXPECT_EQ(log().size(), 2) << logText();
    EXPECT_TRUE(run("Runner.openSoftwareConnector(); Runner_01.openSoftwareConnector(); destroy(a)"));
    EXPECT_FALSE(namesInModel().contains("Runner"));
    EXPECT_EQ(computationOf("Runner_01_connector"), "Runner_01");
}

TEST_F(FConnectorSetUpTest, aRefusedConnectorOwnsNothing) {
    ASSERT_TRUE(run("softwareConnector a()"));
    {
        const FUserStep step("second");
        FConnectorInterface::create("b", connector("a")->getComputation());
    }
    EXPECT_EQ(computationOf("b"), "NULL");
    EXPECT_EQ(log().size(), 1) << logText();
    ASSERT_TRUE(run("destroy(b)"));
    EXPECT_EQ(namesInModel(), QStringList({"Runner", "definitionGenInt", "configurationGenInt", "a"}));
}

TEST_F(FConnectorSetUpTest, aMissingConfigurationIsReplacedInTheSameStep) {
    ASSERT_TRUE(run("softwareConnector c(); genericIntegrationComputation bare()"));
    for (const QString statement :
         {"Runner.setConfiguration(NULL)", "destroy(configurationGenInt)", "c.setComputation(bare)"}) {
        const QString before = savedModel();
        ASSERT_TRUE(run(statement));
        EXPECT_TRUE(namesInModel().contains("definitionGenInt_01")) << statement.toStdString();
        EXPECT_EQ(connector("c")->getDefinition(), object<FDefinitionGenInt>("definitionGenInt_01"));
        expectUndone(before);
    }
    EXPECT_EQ(log(), QStringList());
}

TEST_F(FConnectorSetUpTest, aConnectorCantDependOnItself) {
    ASSERT_TRUE(
        run("softwareConnector c(); genericIntegrationComputation other(); definitionGenInt.addEntry(\"e\", 1)"));
    ASSERT_TRUE(run("other.setConfiguration(configurationGenInt); c.setComputation(NULL)"));
    ASSERT_TRUE(
        run("configurationGenInt.setEntryValue(\"e\", getAttribute(c, \"setResultsPath\")); c.setComputation(other)"));
    EXPECT_EQ(computationOf("c"), "NULL");
    EXPECT_TRUE(logHolds("its computation can't be other, which depends on this connector")) << logText();
}

TEST_F(FConnectorSetUpTest, aResultFileIsChosenOnlyInAWindow) {
    ASSERT_TRUE(run("softwareConnector c(); refreshAllSoftCons(); c.setResultsPath(chooseResultsFile())"));
    EXPECT_TRUE(logHolds("can be chosen only in a window")) << logText();
}

TEST_F(FOwnedSetUpTest, goesAsAWholeAndComesBackAsAWhole) {
    ASSERT_TRUE(run("genericIntegrationDefinition other() { .setFiles([console]) }; comp.openSoftwareConnector()"));
    ASSERT_TRUE(run("comp.openSoftwareConnector()"));
    ASSERT_EQ(FConnectorInterface::getConnectors().size(), 1);
    const QString before = savedModel();
    for (const QString gone : {"comp_connector", "comp"}) {
        ASSERT_TRUE(run("destroy(" + gone + ")"));
        EXPECT_EQ(namesInModel(), QStringList({"console", "other"})) << gone.toStdString();
        expectUndone(before);
    }
    ASSERT_TRUE(run("ok = comp.run()"));
    EXPECT_EQ(textOf("comp.getResults().getDataAt(\"f\",0)"), "4") << logText();
}
