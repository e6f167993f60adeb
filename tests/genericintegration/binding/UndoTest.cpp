#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "tests/support/FUndoTest.h"

#include <QTemporaryDir>

namespace {

class IntegrationUndoTest : public FUndoTest {
 protected:
    QStringList beginning() const override {
        return {"genericIntegrationCommandFile t0() { .setContent(\"<entry>a</entry> <entry>G|b</entry>\") }",
                "genericIntegrationResultsFile t1() { .setFileName(\"out.dat\") }",
                "parameter t4(2)",
                R"(genericIntegrationDefinition t2() { .addEntry("a", 1) .addEntry("G|b", "x") .addEntry("n", 2, 5, 1);
                       .setFiles([t0, t1]) })",
                "genericIntegrationConfiguration t3() { .setDefinition(t2) .setEntryValue(\"a\", t4 * 3) }",
                "genericIntegrationComputation t5() { .setConfiguration(t3) }"};
    }

    IntegrationUndoTest() {
        for (const QString& statement : beginning()) {
            run(statement);
        }
        EXPECT_TRUE(run("t2.save(\"" + files().front() + "\")"));
    }

    QStringList files() const override { return {mFolder.filePath("t2.lodm")}; }

    void edit(FRandomCommands& commands) override {
        const auto objects = FObjectManager::instance()->getManaged(FManaged::null());
        FManaged* object = objects.isEmpty() ? nullptr : objects[commands.pick(objects.size())];
        if (auto* file = dynamic_cast<FGenIntResultsFile*>(object)) {
            editValues(*file, commands);
        } else if (auto* configuration = dynamic_cast<FConfigurationGenInt*>(object)) {
            configuration->reinit(commands.chance(50));
        } else {
            FUndoTest::edit(commands);
        }
    }

 private:
    const QTemporaryDir mFolder;

    /** As the editor does: the values are changed in place. */
    static void editValues(FGenIntResultsFile& file, FRandomCommands& commands) {
        FHistoryTransaction transaction("edit values");
        if (commands.chance(40)) {
            file.addValue(QString(), commands.pick(5), commands.pick(5), "f", "First", commands.chance(50),
                          FExpr<FUnsigned>(new FUnsigned(3)));
        } else if (file.getValues()->count() > 0) {
            file.setCurValue(file.getValues()->at(commands.pick(file.getValues()->count())));
        }
        file.setCurValueName(QStringLiteral("v%1").arg(commands.pick(5)));
        file.setCurrentAnchor(QStringLiteral("anchor %1").arg(commands.pick(5)));
        if (commands.chance(30)) {
            file.deleteCurrentValue();
        }
        transaction.addStep(&file);
        if (commands.chance(10)) {
            const FExprBase copy(file.clone());
        }
        file.createParam(file.getValues()->count() > 0 ? "v1" : "v2", "t5", false);
    }
};

TEST_F(IntegrationUndoTest, everyStateComesBack) {
    everyStateComesBack();
}

TEST_F(IntegrationUndoTest, memoryStaysWithinTheLimit) {
    memoryStaysWithinTheLimit();
}

TEST_F(IntegrationUndoTest, projectsComeBack) {
    projectsComeBack();
}

}  // namespace
