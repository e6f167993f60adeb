#include "genericintegration/setup/FGenIntEditor.h"
#include "host/core/FHistory.h"
#include "host/design/FConnectorInterface.h"
#include "host/script/FProject.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

class FGenIntEditorTest : public FIntegrationTest {
 protected:
    FGenIntEditorTest() {
        EXPECT_TRUE(
            run("genericIntegrationConfiguration other() { .setDefinition(def) }\n"
                "genericIntegrationComputation second() { .setConfiguration(other) }\n"
                "genericIntegrationComputation bare()"));
    }
    /** Each with its computation. */
    static QStringList connectors() {
        QStringList found;
        for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
            found.append(connector->asManaged()->getName() + ' ' + connector->getComputation().toString());
        }
        return found;
    }
};

TEST_F(FGenIntEditorTest, aDefinitionGetsAConnectorForEachComputation) {
    ASSERT_TRUE(run("genericIntegrationEditor e()"));
    EXPECT_EQ(connectors(), QStringList());
    const QString before = savedModel();
    ASSERT_TRUE(run("e.setDefinition(def).setDefinition(def)"));
    const QStringList both{"comp_Connector comp", "second_Connector second"};
    EXPECT_EQ(connectors(), both);
    const QString after = savedModel();
    ASSERT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel(), before);
    ASSERT_TRUE(FHistory::instance()->redo());
    EXPECT_EQ(savedModel(), after);

    ASSERT_TRUE(run("def.addEntry(\"y\", 1)\ncomp.setTimeLimit(3)"));
    EXPECT_EQ(connectors(), both) << "only a definition that is set makes connectors";
    ASSERT_TRUE(FProject::instance()->save(path("study.mrx")));
    ASSERT_TRUE(FProject::instance()->open(path("study.mrx"), false)) << logText();
    ASSERT_TRUE(run("parameter p(1)"));
    EXPECT_EQ(connectors(), both);
    EXPECT_EQ(object<FGenIntEditor>("e")->getDefinition()->getName(), "def");
    EXPECT_EQ(log(), QStringList());

    ASSERT_TRUE(run("e.setDefinition(NULL)\ne.setDefinition(def)"));
    EXPECT_EQ(connectors(), both + QStringList({"comp_Connector_01 NULL", "second_Connector_01 NULL"}))
        << "a computation has one connector";
    EXPECT_EQ(log().filter("is already set to software connector").size(), 2) << logText();
}

}  // namespace
