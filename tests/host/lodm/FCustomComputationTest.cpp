#include "host/lodm/FCustomComputation.h"

#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FInputFile.h"
#include "host/run/FResultsGeneric.h"
#include "tests/support/FModelTest.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

/** A definition that names "out.dat" as a file that is read. */
class FProbeDefinition : public FDefinitionCustom {
 public:
    FProbeDefinition() : FDefinitionCustom("def") {}
    FRunFiles getRunFiles() const override { return {{}, {"out.dat"}}; }
};

class FCustomComputationTest : public FModelTest {
 public:
    FCustomComputationTest() {
        FMerixCtrl::instance()->setProjectFile(mFolder.filePath("study.mrx"));
        auto* definition = new FProbeDefinition;
        definition->registerObject();
        mConfiguration->registerObject();
        mComputation->registerObject();
        mComputation->setExecutable("sh");
        EXPECT_TRUE(
            run("def.addEntry(\"span\", 12.5); def.addEntry(\"Wing|name\", \"left \\\"one\\\"\")\n"
                "def.addEntry(\"Wing|polar\", resultsFileName(\"sub/polar.txt\"))"))
            << log().join('\n').toStdString();
        mConfiguration->setDefinition(FExpr<FDefinition>(definition));
        EXPECT_TRUE(run("comp.setConfiguration(conf)"));
    }
    ~FCustomComputationTest() override { FMerixCtrl::instance()->setProjectFile({}); }

 protected:
    bool runScript(const QString& script) {
        mComputation->setArguments({"-c", script});
        return mComputation->run();
    }
    QString contentOf(const QString& name) const {
        QFile file(mComputation->getWorkingPath() + name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : "none";
    }

    QTemporaryDir mFolder;
    FConfigurationCustom* mConfiguration = new FConfigurationCustom("conf");
    FCustomComputation* mComputation = new FCustomComputation("comp");
};

}  // namespace

TEST_F(FCustomComputationTest, writesItsCommandFile) {
    EXPECT_TRUE(runScript(": > out.dat")) << log().join('\n').toStdString();
    EXPECT_EQ(contentOf("commands"), "none");
    mComputation->setCmdFile("commands");
    EXPECT_TRUE(runScript("cp commands out.dat"));
    EXPECT_EQ(contentOf("out.dat"), "Wing|name = left \"one\"\nWing|polar = sub/polar.txt\nspan = 12.5\n");
    mComputation->setCmdFile("../../commands");
    EXPECT_FALSE(runScript(": > out.dat"));
    EXPECT_TRUE(logHolds("command file can't be written"));
}

TEST_F(FCustomComputationTest, expectsTheFilesOfItsDefinition) {
    EXPECT_FALSE(runScript("true"));
    EXPECT_EQ(mComputation->getResults()->getRun()->cause, FRunRecord::Cause::FileMissing);
    EXPECT_TRUE(logHolds("'out.dat'"));
}

TEST_F(FCustomComputationTest, knowsItsResultFiles) {
    ASSERT_TRUE(runScript(": > out.dat"));
    const QString path = mComputation->getWorkingPath() + "sub/polar.txt";
    EXPECT_EQ(textOf("comp.getResults().getResultFileName(\"Wing|polar\")"), path) << log().join('\n').toStdString();
    EXPECT_EQ(textOf("comp.getResults().getResultFileName(\"sub/polar.txt\")"), path);
    EXPECT_EQ(textOf("comp.getResults().getResultFileName(\"span\")"), "");
}

TEST_F(FCustomComputationTest, undoesItsConfiguration) {
    ASSERT_TRUE(run("comp.setConfiguration(NULL)"));
    EXPECT_FALSE(mComputation->getConfiguration());
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(mComputation->getConfiguration().ptr(), mConfiguration);
    mComputation->update();
    ASSERT_TRUE(run("conf.setEntryValue(\"span\", 3)"));
    EXPECT_TRUE(mComputation->isOutOfDate()) << "it depends on the configuration again";
}
