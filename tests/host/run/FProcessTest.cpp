#include "host/run/FProcess.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/waitUntil.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <functional>

using Cause = FProcessOutcome::Cause;
using testing::HasSubstr;

namespace {

// Starts three processes and tells their numbers: one in the group, one in a session of its own, and an orphan.
const char* const kFamily =
    ": > pids; sh -c 'echo $$ >> pids; exec sleep 1000' &\n"
    "setsid sh -c 'echo $$ >> pids; exec sleep 1000' &\n"
    "(setsid sh -c 'echo $$ >> pids; exec sleep 1000' &)\n"
    "while [ $(wc -l < pids) -lt 3 ]; do sleep 0.01; done; echo $PPID > supervisor\n";

// A dead process that its new parent hasn't noticed yet counts as dead.
bool isAlive(pid_t pid) {
    QFile file(QString("/proc/%1/stat").arg(pid));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

int openDescriptors() {
    return static_cast<int>(
        QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

class FProcessTest : public testing::Test, public FTestFolder {
 protected:
    FProcessTest() : FTestFolder(QDir::tempPath() + QString::fromUtf8("/läuft \"hier\" 'gut' $HOME-XXXXXX")) {}

    FProcessSetup shell(const QString& script, const QStringList& arguments = {}) const {
        FProcessSetup setup;
        setup.program = "sh";
        setup.arguments = QStringList{"-c", script, "sh"} + arguments;
        setup.workingFolder = path();
        setup.standardOutputFile = "stdout.txt";
        setup.standardErrorFile = "stderr.txt";
        setup.grace = 0.2;
        return setup;
    }

    FProcessOutcome finish(
        FProcess& process, const std::function<void()>& meanwhile = [] {}) {
        int count = 0;
        QObject::connect(&process, &FProcess::finished, [&count] { ++count; });
        meanwhile();
        EXPECT_TRUE(waitUntil([&count] { return count > 0; }));
        EXPECT_EQ(count, 1);
        EXPECT_FALSE(process.isRunning());
        return process.outcome();
    }

    FProcessOutcome run(const FProcessSetup& setup) {
        FProcess process(setup);
        process.start();
        return finish(process);
    }

    void forgetFamily() const {
        QFile::remove(path("pids"));
        QFile::remove(path("supervisor"));
    }
    // The family is complete when the supervisor's number is there.
    bool hasFamily() const { return read("supervisor").endsWith('\n'); }

    std::vector<pid_t> family() const {
        std::vector<pid_t> result;
        for (const QByteArray& line : read("pids").simplified().split(' ')) {
            result.push_back(line.toInt());
        }
        EXPECT_EQ(result.size(), 3U);
        return result;
    }

    int countAlive() const {
        const std::vector<pid_t> all = family();
        return static_cast<int>(std::count_if(all.begin(), all.end(), isAlive));
    }

    pid_t supervisor() const { return read("supervisor").trimmed().toInt(); }
};

TEST_F(FProcessTest, tellsHowTheProgramEnded) {
    FProcess process(shell("echo done"));
    bool hasStarted = false;
    QObject::connect(&process, &FProcess::started, [&] { hasStarted = process.outcome().processId > 0; });
    process.start();
    const FProcessOutcome success = finish(process);
    EXPECT_TRUE(hasStarted);
    EXPECT_EQ(success.cause, Cause::None);
    const FProcessOutcome code = run(shell("echo why >&2; exit 3"));
    EXPECT_EQ(code.cause, Cause::ExitCode);
    EXPECT_EQ(code.exitCode, 3);
    EXPECT_THAT(code.message.toStdString(), HasSubstr("in 'stderr.txt'"));

    const FProcessOutcome fault = run(shell("kill -KILL $$"));
    EXPECT_EQ(fault.cause, Cause::Signal);
    EXPECT_EQ(fault.signal, SIGKILL);
    EXPECT_THAT(fault.message.toStdString(), HasSubstr("killed (SIGKILL)"));
    EXPECT_THAT(fault.message.toStdString(), testing::Not(HasSubstr("stderr.txt"))) << "which is empty";
}

TEST_F(FProcessTest, tellsWhyTheProgramDidNotStart) {
    write("plain.sh", "#!/bin/sh\n");
    write("headless", "echo x\n", QFile::ExeOwner);
    write("orphan.sh", "#!/no/such/interpreter\n", QFile::ExeOwner);
    const auto failure = [this](const std::function<void(FProcessSetup&)>& change) {
        FProcessSetup setup = shell("echo x");
        change(setup);
        const FProcessOutcome outcome = run(setup);
        EXPECT_EQ(outcome.cause, Cause::ProgramNotStarted);
        EXPECT_FALSE(outcome.start.isValid());
        return outcome.message.toStdString();
    };
    const auto ofProgram = [&](const QString& program) {
        return failure([&](FProcessSetup& setup) { setup.program = program; });
    };
    const auto searched = [&](FProcessSetup& setup) {
        setup.program = "no-such-program";
        setup.environment << "PATH=/first/bin:/bin";
    };
    EXPECT_THAT(failure(searched), HasSubstr("PATH: /first/bin, /bin."));
    EXPECT_THAT(failure(searched), HasSubstr("PATH. Install")) << "the list isn't repeated";
    EXPECT_THAT(ofProgram("python3 pump.py -v"), HasSubstr("not found. Arguments belong into setArguments: "
                                                           "setExecutable(\"python3\"), "
                                                           "setArguments([\"pump.py\", \"-v\"])."));
    EXPECT_THAT(ofProgram("./none"), HasSubstr(path("./none").toStdString()));
    EXPECT_THAT(ofProgram("./plain.sh"), HasSubstr("not executable"));
    EXPECT_THAT(ofProgram(path()), HasSubstr("is a folder"));
    EXPECT_THAT(ofProgram(""), HasSubstr("No program"));
    EXPECT_THAT(ofProgram("./headless"), HasSubstr("#!/bin/sh"));
    EXPECT_THAT(ofProgram("./orphan.sh"), HasSubstr("interpreter"));
    EXPECT_THAT(failure([](FProcessSetup& setup) { setup.arguments << QString(200'000, 'x'); }), HasSubstr("too long"));
    EXPECT_THAT(failure([](FProcessSetup& setup) { setup.environment << "=x"; }), HasSubstr("'=x'"));
    EXPECT_THAT(failure([](FProcessSetup& setup) { setup.standardInputFile = "in.txt"; }), HasSubstr("in.txt"));
    EXPECT_THAT(failure([](FProcessSetup& setup) { setup.workingFolder = "/no/such"; }), HasSubstr("working folder"));
    qputenv("MERIX_SUPERVISOR", "/no/such/supervisor");
    EXPECT_THAT(ofProgram("sh"), HasSubstr("/no/such/supervisor"));
    qunsetenv("MERIX_SUPERVISOR");
}

TEST_F(FProcessTest, passesAllOnUnchanged) {
    const int inherited = open("/dev/null", O_RDONLY);  // not closed on exec, as a careless library leaves it
    const QStringList arguments{"a b",       "\"q\" 'r'", "$HOME", "*", "", "back\\slash", QString::fromUtf8("größe"),
                                "two\nlines"};
    FProcessSetup setup = shell("printf '<%s>' \"$@\" \"$WORD\"; cat; pwd; ls /proc/self/fd", arguments);
    setup.environment = QStringList{QString::fromUtf8("WORD=a=b ü")};
    write("in.txt", QByteArray("bytes \0 \xff\xfe\n", 11));
    setup.standardInputFile = "in.txt";
    EXPECT_EQ(run(setup).cause, Cause::None);
    QByteArray expected = "<" + arguments.join("><").toUtf8() + "><a=b \xc3\xbc>";
    expected += QByteArray("bytes \0 \xff\xfe\n", 11) + path().toUtf8() + "\n0\n1\n2\n3\n";
    EXPECT_EQ(read("stdout.txt"), expected);
    close(inherited);

    write("tool", "#!/bin/sh\necho own tool\n", QFile::ExeOwner);
    write("sub/tool", "not executable");
    FProcessSetup bare = shell("");
    bare.program = "tool";
    bare.environment = QStringList{"PATH=sub:/usr/bin:"};
    EXPECT_EQ(run(bare).cause, Cause::None);
    EXPECT_EQ(read("stdout.txt"), "own tool\n");
}

TEST_F(FProcessTest, asksBeforeItKills) {
    FProcessSetup polite = shell(
        "setsid sh -c 'trap \"echo asked > session; exit\" TERM; while :; do sleep 0.01; done' &\n"
        "trap 'echo asked; exit 7' TERM; echo ready; while :; do sleep 0.01; done");
    polite.timeLimit = 0.5;
    polite.grace = 30;
    const FProcessOutcome asked = run(polite);
    EXPECT_EQ(asked.cause, Cause::TimeLimit);
    EXPECT_EQ(asked.exitCode, 7);
    EXPECT_THAT(asked.message.toStdString(), HasSubstr("time limit of 0.5 s"));
    EXPECT_GE(asked.start.msecsTo(asked.end), 490);
    EXPECT_EQ(read("stdout.txt"), "ready\nasked\n");
    EXPECT_EQ(read("session"), "asked\n") << "a process in a session of its own";

    FProcess stubborn(shell("trap '' TERM; echo ready; while :; do sleep 0.01; done"));
    stubborn.start();
    const FProcessOutcome killed = finish(stubborn, [&] {
        EXPECT_TRUE(waitUntil([this] { return read("stdout.txt") == "ready\n"; }));
        stubborn.cancel();
    });
    EXPECT_EQ(killed.cause, Cause::Cancelled);
    EXPECT_EQ(killed.signal, SIGKILL);
    EXPECT_EQ(read("stdout.txt"), "ready\n");
}

TEST_F(FProcessTest, nothingStaysBehind) {
    // What is done once the family of processes is complete.
    struct Ending {
        const char* script;
        double timeLimit;
        std::function<void(FProcess&, pid_t supervisor)> act;
        Cause cause;
    };
    const auto doNothing = [](FProcess&, pid_t) {};
    const auto cancel = [](FProcess& process, pid_t) { process.cancel(); };
    const auto askSupervisor = [](FProcess&, pid_t supervisor) { kill(supervisor, SIGHUP); };
    for (const Ending& ending :
         {Ending{"%1 exit 0", 0, doNothing, Cause::None},
          Ending{"trap '' TERM; %1 exit 3", 0, doNothing, Cause::ExitCode},
          Ending{"%1 wait", 1, doNothing, Cause::TimeLimit}, Ending{"%1 wait", 0, cancel, Cause::Cancelled},
          Ending{"trap '' TERM; %1 wait", 0, cancel, Cause::Cancelled},
          Ending{"%1 wait", 0, askSupervisor, Cause::Cancelled}}) {
        forgetFamily();
        FProcessSetup setup = shell(QString(ending.script).arg(kFamily));
        setup.timeLimit = ending.timeLimit;
        FProcess process(setup);
        process.start();
        const FProcessOutcome outcome = finish(process, [&] {
            ASSERT_TRUE(waitUntil([this] { return hasFamily(); }));
            ending.act(process, supervisor());
        });
        EXPECT_EQ(outcome.cause, ending.cause) << ending.script << "\n" << outcome.message.toStdString();
        EXPECT_EQ(countAlive(), 0) << ending.script;
        EXPECT_FALSE(isAlive(static_cast<pid_t>(outcome.processId))) << ending.script;
    }
}

TEST_F(FProcessTest, destructorEndsTheProgram) {
    {
        FProcess process(shell(QString("%1 wait").arg(kFamily)));
        process.start();
        ASSERT_TRUE(waitUntil([this] { return hasFamily(); }));
        EXPECT_EQ(countAlive(), 3);
    }
    EXPECT_EQ(countAlive(), 0);
}

TEST_F(FProcessTest, programDiesWithItsSupervisor) {
    FProcess process(shell("echo $PPID > supervisor; exec sleep 1000"));
    process.start();
    const FProcessOutcome outcome = finish(process, [this] {
        ASSERT_TRUE(waitUntil([this] { return hasFamily(); }));
        kill(supervisor(), SIGKILL);
    });
    EXPECT_EQ(outcome.cause, Cause::Signal);
    EXPECT_THAT(outcome.message.toStdString(), HasSubstr("supervisor"));
    EXPECT_TRUE(waitUntil([&] { return !isAlive(static_cast<pid_t>(outcome.processId)); }));
}

// The owner gets a session of its own, so that its group can be signalled as a terminal would.
TEST_F(FProcessTest, nothingOutlivesItsOwner) {
    const QString script = QString("trap '' HUP INT TERM; %1 wait").arg(kFamily);
    for (const auto& [toGroup, signal] : {std::pair(false, SIGKILL), {true, SIGKILL}, {true, SIGINT}, {true, SIGHUP}}) {
        forgetFamily();
        QProcess owner;
        owner.start("setsid",
                    {QCoreApplication::applicationDirPath() + "/processOwner", "0.1", path(), "sh", "-c", script});
        ASSERT_TRUE(waitUntil([this] { return hasFamily(); }));
        EXPECT_EQ(countAlive(), 3);
        const auto pid = static_cast<pid_t>(owner.processId());
        ASSERT_GT(pid, 1);
        kill(toGroup ? -pid : pid, signal);
        EXPECT_TRUE(waitUntil([this] { return countAlive() == 0; })) << signal;
        EXPECT_TRUE(waitUntil([this] { return !isAlive(supervisor()); }));
        owner.waitForFinished();
    }
}

TEST_F(FProcessTest, runsSideBySide) {
    FProcess first(shell("exec sleep 1000"));
    FProcess second(shell("exec sleep 1000"));
    first.start();
    second.start();
    ASSERT_TRUE(waitUntil([&] { return first.outcome().processId > 0 && second.outcome().processId > 0; }));
    EXPECT_EQ(finish(first, [&] { first.cancel(); }).cause, Cause::Cancelled);
    EXPECT_TRUE(isAlive(static_cast<pid_t>(second.outcome().processId)));
    EXPECT_EQ(finish(second, [&] { second.cancel(); }).cause, Cause::Cancelled);
}

TEST_F(FProcessTest, leavesNoDescriptorAndNoZombie) {
    EXPECT_EQ(run(shell("exit 0")).cause, Cause::None);
    const int before = openDescriptors();
    for (int i = 0; i < 30; ++i) {
        run(shell("exit 1"));
        FProcess cancelledAtOnce(shell("exec sleep 1000"));
        cancelledAtOnce.start();
        EXPECT_EQ(finish(cancelledAtOnce, [&] { cancelledAtOnce.cancel(); }).cause, Cause::Cancelled);
    }
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

}  // namespace
