#include "tests/system/FProgramTest.h"

#include <QThread>

#include <csignal>

namespace {

class TerminationTest : public FProgramTest {
 protected:
    const QString mSetUp = R"(
genericIntegrationDefinition def() { .addEntry("x", 1) }
genericIntegrationConfiguration conf() { .setDefinition(def) }
genericIntegrationComputation comp() { .setConfiguration(conf); .setExecutable("sh") }
comp.setArguments(["-c", "exit 3"])
)";
};

TEST_F(TerminationTest, anIgnoredFailureFailsTheScript) {
    const struct {
        QString commands;
        int exitCode;
        QString told;
    } cases[] = {
        {"comp.run()", 1, "1 run failed"},
        {"for (i in [1, 2]) { comp.run(); [comp, comp].run() }", 1, "6 runs failed"},
        {"include(\"more.merix\")", 1, "1 run failed"},
        {"ok = comp.run()", 0, ""},
        {"if (!comp.run()) { print(comp.getState()) }", 0, ""},
        {"comp.run(); exit(0)", 0, ""},
        {"comp.run(); exit(7)", 7, ""},
        {"comp.setAllowedExitCodes([3]); comp.run()", 0, ""},
    };
    write("more.merix", "comp.run()\n");
    for (const auto& each : cases) {
        const Outcome outcome = script(mSetUp + each.commands);
        EXPECT_EQ(outcome.exitCode, each.exitCode) << each.commands.toStdString() << outcome.errors.toStdString();
        EXPECT_EQ(outcome.errors.contains("didn't use the result of run()"), !each.told.isEmpty());
        EXPECT_TRUE(outcome.errors.contains(each.told)) << outcome.errors.toStdString();
    }
}

TEST_F(TerminationTest, anInterruptedRunIsNamedWithItsFolder) {
    const struct {
        int signal;
        QString commands, told;
        QStringList arguments = {"script", "test.merix"};
    } cases[] = {
        {SIGINT,
         "comp.setArguments([\"-c\", \"touch ../../../ready.mrx; exec sleep 60\"]); saveProject(\"p.mrx\"); comp.run()",
         "comp: Interrupted while its run was in progress"},
        {SIGTERM, "comp.setArguments([\"-c\", \"true\"]); comp.run(); saveProject(\"ready.mrx\")\nwhile (true) {}",
         "Interrupted while no run was in progress"},
        {SIGINT, "", "comp: Interrupted while its run was in progress", {"run", "p.mrx", "--set", "x=99"}},
    };
    for (const auto& each : cases) {
        QFile::remove(path("ready.mrx"));
        write("test.merix", (mSetUp + each.commands).toUtf8());
        QProcess program;
        start(program, each.arguments);
        for (int i = 0; i < 3000 && !has("ready.mrx"); ++i) {
            QThread::msleep(10);
        }
        kill(static_cast<pid_t>(program.processId()), each.signal);
        ASSERT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::CrashExit) << "it ends by the signal";
        const QString errors = QString::fromUtf8(program.readAllStandardError());
        EXPECT_TRUE(errors.contains(each.told)) << errors.toStdString();
        EXPECT_EQ(errors.contains(path("p.results/baseline/comp/")), each.signal == SIGINT) << errors.toStdString();
        EXPECT_EQ(errors.count("Interrupted"), 1) << errors.toStdString();
        EXPECT_FALSE(has("p.mrx.autosave"));
    }
}

}  // namespace
