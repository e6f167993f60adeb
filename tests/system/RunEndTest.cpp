#include "tests/system/FProgramTest.h"
#include "tests/system/FSetUp.h"

#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <csignal>
#include <functional>

namespace {

class RunEndTest : public FProgramTest {
 protected:
    /** A computation that reads the number f of out.dat. */
    static FSetUp setUp(const QString& script) {
        FSetUp setUp = FSetUp::shell(script);
        setUp.results = {{"out.dat", {FSetUp::value("f", 0, 0, "f ", "Last")}}};
        return setUp;
    }
    static QString withScript(const QString& script) {
        return QString("comp.setArguments([\"-c\", %1])\n").arg(FSetUp::quoted(script));
    }

    const QString mNumber = FSetUp::number("out.dat", "f");
};

bool waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 30'000) {
        QThread::msleep(5);
    }
    return condition();
}

// A dead process that its new parent hasn't noticed yet counts as dead.
bool isAlive(pid_t pid) {
    QFile file(QString("/proc/%1/stat").arg(pid));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

/** A program that starts the one that computes, in a group of its own, and waits for it; both write their numbers. */
class RunFamilyTest : public RunEndTest {
 public:
    RunFamilyTest() {
        write(
            "solver.sh",
            "#!/bin/sh\n"
            "echo $$ > \"$1/parent.tmp\"; mv \"$1/parent.tmp\" \"$1/parent\"\n"
            "setsid sh -c 'echo $$ > \"$1/child.tmp\"; mv \"$1/child.tmp\" \"$1/child\"; exec sleep 1000' sh \"$1\" &\n"
            "wait\n");
        QFile::setPermissions(path("solver.sh"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        mSetUp.program = "./solver.sh";
        mSetUp.arguments = QStringList{path()};
    }

 protected:
    bool hasFamily() const { return QFile::exists(path("parent")) && QFile::exists(path("child")); }
    int countAlive() const {
        const auto isAliveIn = [this](const char* file) { return isAlive(read(file).trimmed().toInt()); };
        return int(isAliveIn("parent")) + int(isAliveIn("child"));
    }

    FSetUp mSetUp;
};

TEST_F(RunEndTest, stateCodeAndNumberTellHowTheProgramEnded) {
    struct Case {
        QString commands;
        QString printed;
        QStringList words;
    };
    const QString number = "echo f 7 > out.dat; ";
    const QList<Case> cases{
        {withScript(number + "exit 0"), "true finished 0 7", {}},
        {withScript("exit 0"), "false failed 0 NaN", {"didn't write 'out.dat'"}},
        {withScript(number + "echo no licence >&2; exit 3"),
         "false failed 3 7",
         {"exit code 3", "last lines of stderr.txt", "no licence"}},
        {"comp.setExecutable(\"no-such-solver\")\n", "false failed -1 NaN", {"no-such-solver", "/bin"}},
        {"comp.setExecutable(\"sh\"); comp.setTimeLimit(1.5)\n" + withScript(number + "exec sleep 1000"),
         "false timed out -1 7",
         {"time limit of 1.5 s"}},
        {"comp.setTimeLimit(0)\n" + withScript("kill -SEGV $$"),
         "false failed -1 NaN",
         {"segmentation fault (SIGSEGV)"}},
        {withScript("yes 'step 12.5' | head -c 20000000 > out.dat; cat out.dat; echo f 7 >> out.dat"),
         "true finished 0 7",
         {}},
    };
    QString text = setUp("").text();
    QString expected;
    for (const Case& c : cases) {
        text += c.commands + "print(comp.run(), comp.getState(), comp.getExitCode(), " + mNumber + ")\n";
        expected += c.printed + "\n";
    }
    const Outcome outcome = script(text);
    EXPECT_EQ(outcome.exitCode, 0) << "a run that failed is no fault of the script";
    EXPECT_EQ(outcome.output, expected);
    int position = 0;
    for (const Case& c : cases) {
        for (const QString& word : c.words) {
            position = outcome.errors.indexOf(word, position);
            ASSERT_GE(position, 0) << word.toStdString() << "\n" << outcome.errors.toStdString();
        }
    }
    EXPECT_EQ(outcome.errors.count("error: "), 5) << outcome.errors.toStdString();
    EXPECT_EQ(read(runFile("stdout.txt")).size(), 20'000'000);

    EXPECT_EQ(script(setUp("exit 3").text() + "if (!comp.run()) { exit(comp.getExitCode()) }").exitCode, 3);
}

TEST_F(RunEndTest, noNumberIsOfAnEarlierRun) {
    const QString report = "print(" + mNumber + ", first.getTable(\"out.dat\").getElementAt(\"f\"))\n";
    const Outcome outcome =
        script(setUp("echo f 1 > out.dat; echo f 2 > stray; echo f 3 > .hidden").text() +
               "ok = comp.run()\nfirst = comp.getResults()\n" + report + withScript("exit 3") + "ok = comp.run()\n" +
               report + withScript("cp stray out.dat; cp .hidden out.dat; true") + "ok = comp.run()\n" + report +
               withScript("echo f 4 >> out.dat; mv out.dat o; mv o out.dat; touch -d 2001-01-01 out.dat") +
               "ok = comp.run()\n" + report);
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "1 1\nNaN 1\nNaN 1\n4 1\n") << outcome.errors.toStdString();
    EXPECT_EQ(read(runFile("out.dat")), "f 4\n");
}

TEST_F(RunFamilyTest, aTimeLimitLeavesNothingRunning) {
    mSetUp.settings = ".setTimeLimit(1.5)";
    const Outcome outcome = script(mSetUp.text() + "print(comp.run(), comp.getState())");
    EXPECT_EQ(outcome.output, "false timed out\n") << outcome.errors.toStdString();
    ASSERT_TRUE(hasFamily());
    EXPECT_EQ(countAlive(), 0);
}

TEST_F(RunFamilyTest, nothingOutlivesTheProgram) {
    write("test.merix", (mSetUp.text() + "comp.run()").toUtf8());
    for (const int signal : {SIGKILL, SIGTERM, SIGINT}) {
        QFile::remove(path("parent"));
        QFile::remove(path("child"));
        QProcess program;
        start(program, {"script", "test.merix"});
        ASSERT_TRUE(waitUntil([this] { return hasFamily(); }));
        EXPECT_EQ(countAlive(), 2);
        ASSERT_GT(program.processId(), 1);
        kill(static_cast<pid_t>(program.processId()), signal);
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_TRUE(waitUntil([this] { return countAlive() == 0; })) << signal;
    }
}

}  // namespace
