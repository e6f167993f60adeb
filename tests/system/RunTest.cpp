#include "tests/system/FProgramTest.h"

#include <locale.h>

#include <csignal>

namespace {

class RunTest : public FProgramTest {
 protected:
    static QString withScript(const QString& script) {
        return QString("comp.setArguments([\"-c\", \"%1\"])\n").arg(script);
    }

    /** A computation that reads the number f of out.dat. */
    const QString mSetUp = R"(
genericIntegrationResultsFile out() {
    .setFileName("out.dat")
    .setValues([["f", 0, 0, "f ", Last, "FDouble", ""]])
}
genericIntegrationDefinition def() { .setFiles([out]) }
genericIntegrationConfiguration conf() { .setDefinition(def) }
genericIntegrationComputation comp() { .setConfiguration(conf); .setExecutable("sh") }
)";
    const QString mNumber = "comp.getResults().getTable(\"out.dat\").getElementAt(\"f\")";
};

TEST_F(RunTest, stateCodeAndNumberTellHowTheProgramEnded) {
    const QString writes = "echo f 7 > out.dat; ";
    const QList<QPair<QString, QString>> cases{
        {withScript(writes + "exit 0"), "true finished 0 7"},
        {withScript("exit 0"), "false failed 0 NaN"},
        {withScript(writes + "echo no licence >&2; exit 3"), "false failed 3 7"},
        {"comp.setExecutable(\"no-such-solver\")\n", "false failed -1 NaN"},
        {"comp.setExecutable(\"sh\"); comp.setTimeLimit(1.5)\n" + withScript(writes + "exec sleep 1000"),
         "false timed out -1 7"},
        {"comp.setTimeLimit(0)\n" + withScript("kill -SEGV $$"), "false failed -1 NaN"},
        {withScript("yes 'step 12.5' | head -c 20000000 > out.dat; cat out.dat; echo f 7 >> out.dat"),
         "true finished 0 7"},
    };
    QString text = mSetUp;
    QString expected;
    for (const auto& [commands, printed] : cases) {
        text += commands + "print(comp.run(), comp.getState(), comp.getExitCode(), " + mNumber + ")\n";
        expected += printed + "\n";
    }
    const Outcome outcome = script(text);
    EXPECT_EQ(outcome.exitCode, 0) << "a failed run is not an error of the script";
    EXPECT_EQ(outcome.output, expected);
    int position = 0;
    for (const char* told : {"didn't write 'out.dat'", "exit code 3", "stderr.txt:1: no licence", "no-such-solver",
                             "/bin", "time limit of 1.5 s", "segmentation fault (SIGSEGV)"}) {
        position = outcome.errors.indexOf(told, position);
        ASSERT_GE(position, 0) << told << "\n" << outcome.errors.toStdString();
    }
    EXPECT_EQ(outcome.errors.count("error: "), 5) << outcome.errors.toStdString();
    EXPECT_EQ(read(runFile("stdout.txt")).size(), 20'000'000);

    EXPECT_EQ(script(mSetUp + withScript("exit 3") + "if (!comp.run()) { exit(comp.getExitCode()) }").exitCode, 3);
}

TEST_F(RunTest, whatAnInterruptedRunWroteIsNeverRead) {
    const QString declare =
        QString(mSetUp).replace(".setFiles", ".addEntry(\"cp\", resultsFileName(\"cp.dat\")); .setFiles");
    ASSERT_EQ(script(declare + "saveProject(\"k.mrx\")").exitCode, 0);
    const QString open = "openProject(\"k.mrx\")\n";
    for (const int signal : {SIGINT, SIGTERM, SIGKILL}) {
        write("killed.merix", (open +
                               withScript("trap '' TERM; echo f 6 > out.dat; echo 6 > cp.dat; echo f 6 > restart; "
                                          "sleep 100 & wait; sleep 100") +
                               "comp.run()\n")
                                  .toUtf8());
        QProcess killed;
        start(killed, {"script", "killed.merix"});
        for (int wait = 0; wait < 1000 && !has("k.results/baseline/comp/restart"); ++wait) {
            killed.waitForFinished(10);
        }
        ASSERT_TRUE(has("k.results/baseline/comp/restart"));
        ::kill(static_cast<pid_t>(killed.processId()), signal);
        ASSERT_TRUE(killed.waitForFinished());
        const Outcome next =
            script(open + "print(comp.getState())\n" + withScript("cp restart out.dat; ls; exit 0") +
                   "print(comp.run(), " + mNumber + ", readText(comp.getWorkingPath() + \"cp.dat\"))\n" +
                   withScript("echo f 7 > out.dat") + "print(comp.run(), " + mNumber + ")\n");
        EXPECT_TRUE(next.output == "running\nfalse NaN NULL\ntrue 7\n" ||
                    next.output == "failed\nfalse NaN NULL\ntrue 7\n")
            << signal << next.output.toStdString() << next.errors.toStdString();
        EXPECT_TRUE(next.errors.contains("was interrupted; what wasn't there before it")) << next.errors.toStdString();
    }
}

TEST_F(RunTest, theFirstSaveTakesTheRunsAlong) {
    const Outcome saved = script(mSetUp + withScript("echo f 7 > out.dat") +
                                 "comp.run(); r = comp.getResults()\nsaveProject(\"beam.mrx\")\n"
                                 "print(comp.getWorkingPath(), " +
                                 mNumber + ")\n");
    EXPECT_TRUE(saved.output.endsWith("beam.results/baseline/comp/ 7\n")) << saved.output.toStdString();
    EXPECT_TRUE(QDir(path()).entryList({"merix-*"}, QDir::Dirs).isEmpty()) << "nothing stays in the temporary folder";
    const Outcome reread = script("openProject(\"beam.mrx\")\nprint(comp.rereadResults(), comp.getState(), " + mNumber +
                                  ")\ncomp.setArguments([])\nprint(comp.getResults().getState())\n");
    EXPECT_EQ(reread.output,
              "true finished 7\nfinished, of an earlier set-up (arguments was -c \"echo f 7 > out.dat\", is empty)\n")
        << reread.errors.toStdString();
}

TEST_F(RunTest, resultsOfADesignAreSavedAndReadBack) {
    const QString loop = "design d1(); design d2()\n" + withScript("echo f 1 > out.dat") +
                         "comp.setDesign(d1); comp.run()\n" + withScript("echo f 2 > out.dat") +
                         "comp.setDesign(d2); comp.run()\nsaveProject(\"s.mrx\")\n";
    ASSERT_EQ(script(mSetUp + loop).exitCode, 0);
    const Outcome read = script("openProject(\"s.mrx\")\nprint(" + mNumber + ")\ncomp.setDesign(d1)\nprint(" + mNumber +
                                ", comp.getState())\n");
    EXPECT_EQ(read.output, "2\n1 finished\n") << read.errors.toStdString();
    EXPECT_EQ(read.errors.count("\n"), 1) << read.errors.toStdString();
    EXPECT_TRUE(read.errors.contains("are of an earlier set-up (arguments was -c \"echo f 1"))
        << read.errors.toStdString();

    const Outcome renamed = script(
        "openProject(\"s.mrx\")\nrename(d1, \"low\"); rename(d2, \"d1\"); rename(comp, \"solver\")\n"
        "print(solver.getResults().getTableAt(0).getElementAt(0))\nsaveProject()\n"
        "print(solver.getWorkingPath())\nsaveProject(\"copy.mrx\")\n");
    EXPECT_EQ(renamed.output, "2\n" + path("s.results/d1/solver/") + "\n") << renamed.errors.toStdString();
    EXPECT_TRUE(renamed.errors.contains("The runs stay in '" + path("s.results") + "'"))
        << renamed.errors.toStdString();
    const Outcome reopened = script(
        "openProject(\"s.mrx\")\nprint(solver.getState(), solver.getResults().getTableAt(0).getElementAt(0))\n"
        "solver.setDesign(low)\nprint(solver.getState(), solver.getResults().getTableAt(0).getElementAt(0))\n");
    EXPECT_EQ(reopened.output, "finished 2\nfinished 1\n") << reopened.errors.toStdString();
}

TEST_F(RunTest, theLocaleChangesNothing) {
    const QString text = R"(
genericIntegrationCommandFile input() {
    .setFileName("größe/eingabe.txt")
    .setContent("<entry>GRÖßE</entry> <entry>text</entry> <entry>big</entry> 0,25")
}
genericIntegrationResultsFile output() {
    .setFileName("größe/aus.txt")
    .setValues([["Größe", 0, 0, "", First, "FDouble", ""], ["big", 0, 0, "öl", First, "FDouble", ""],
                ["comma", 0, 2, "", First, "FDouble", ""]])
}
genericIntegrationDefinition def() {
    .addEntry("Größe", 1234567.5) .addEntry("text", "Öl") .addEntry("big", 1e22) .setFiles([input, output])
}
genericIntegrationConfiguration conf() { .setDefinition(def); .setEntryValue("Größe", 1234567.5 / 2) }
genericIntegrationComputation comp() {
    .setConfiguration(conf)
    .setExecutable("sh")
    .setArguments(["-c", "cat größe/eingabe.txt; cp größe/eingabe.txt größe/aus.txt; echo $0", "Maß 1,5"])
}
ok = comp.run()
t = comp.getResults().getTable("größe/aus.txt")
print(comp.getState(), format(2.5, "%8.3f"), number("2.5"), t.getElementAt("Größe"), t.getElementAt("big"))
print(t.getElementAt("comma"), readText(comp.getWorkingPath() + "stdout.txt"))
)";
    for (const QString name : {"C", "C.UTF-8", "de_DE.UTF-8"}) {
        const Outcome outcome = script(text, {}, {"LC_ALL=" + name});
        EXPECT_EQ(outcome.output, "finished    2.500 2.5 617283.75 1e+22\n0 617283.75 Öl 1e+22 0,25Maß 1,5\n\n")
            << name.toStdString() << "\n"
            << outcome.errors.toStdString();
    }
    const locale_t german = newlocale(LC_ALL_MASK, "de_DE.UTF-8", nullptr);
    if (!german) {
        GTEST_SKIP() << "The locale de_DE.UTF-8 isn't installed, so decimal commas could not be tested.";
    }
    freelocale(german);
}

}  // namespace
