#include "host/core/FMerixCtrl.h"
#include "host/lodm/FCustomComputation.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"

namespace {

class FCustomComputationTest : public FDirectTest, public FTestFolder {
 public:
    FCustomComputationTest() {
        FMerixCtrl::instance()->setProjectFile(path("study.mrx"));
        auto* definition = new FDefinitionCustom("def");
        definition->registerObject();
        mConfiguration->registerObject();
        mComputation->registerObject();
        set(*mComputation, "setExecutable", QString("sh"));
        EXPECT_TRUE(
            run("def.addEntry(\"span\", 12.5); def.addEntry(\"Wing|name\", \"left \\\"one\\\"\")\n"
                "def.addEntry(\"Wing|polar\", resultsFileName(\"sub/polar.txt\"))"))
            << logText();
        mConfiguration->setDefinition(FExpr<FDefinition>(definition));
        EXPECT_TRUE(run("comp.setConfiguration(conf)"));
    }

 protected:
    bool runScript(const QString& script) {
        set(*mComputation, "setArguments", QStringList{"-c", script});
        return mComputation->run();
    }
    FConfigurationCustom* mConfiguration = new FConfigurationCustom("conf");
    FCustomComputation* mComputation = new FCustomComputation("comp");
};

}  // namespace

TEST_F(FCustomComputationTest, writesItsCommandFile) {
    EXPECT_TRUE(runScript("test ! -e commands")) << logText();
    set(*mComputation, "setCmdFile", QString("commands"));
    EXPECT_TRUE(runScript("true"));
    EXPECT_EQ(read("study.results/baseline/comp/commands"),
              "Wing|name = left \"one\"\nWing|polar = sub/polar.txt\nspan = 12.5\n");
    set(*mComputation, "setCmdFile", QString("../../commands"));
    EXPECT_FALSE(runScript("true"));
    EXPECT_TRUE(logHolds("command file can't be written"));
}

TEST_F(FCustomComputationTest, knowsItsResultFiles) {
    ASSERT_TRUE(runScript("true"));
    const QString path = mComputation->getWorkingPath() + "sub/polar.txt";
    EXPECT_EQ(textOf("comp.getResults().getResultFileName(\"Wing|polar\")"), path) << logText();
    EXPECT_EQ(textOf("comp.getResults().getResultFileName(\"sub/polar.txt\")"), path);
    EXPECT_EQ(textOf("comp.getResults().getResultFileName(\"span\")"), "");
}
