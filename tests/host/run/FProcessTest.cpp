#include "host/run/FProcess.h"

#include "host/run/FFileTail.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

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

bool waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 30000) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
    return condition();
}

// A dead process that its new parent hasn't noticed yet counts as dead.
bool isAlive(pid_t pid) {
    QFile file(QString("/proc/%1/stat").arg(pid));
    return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
}

int openDescriptors() {
    return static_cast<int>(
        QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size());
}

class FProcessTest : public testing::Test {
 protected:
    FProcessSetup shell(const QString& script, const QStringList& arguments = {}) const {
        FProcessSetup setup;
        setup.program = "sh";
        setup.arguments = QStringList{"-c", script, "sh"} + arguments;
        setup.workingFolder = mFolder.path();
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

    QByteArray read(const QString& name) const {
        QFile file(mFolder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString write(const QString& name, const QByteArray& content, QFile::Permissions more = {}) const {
        QFile file(mFolder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.setPermissions(file.permissions() | more);
        return file.fileName();
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

    QTemporaryDir mFolder{QDir::tempPath() + QString::fromUtf8("/läuft \"hier\" 'gut' $HOME-XXXXXX")};
};

TEST_F(FProcessTest, tellsHowTheProgramEnded) {
    FProcess process(shell("echo done"));
    bool hasStarted = false;
    QObject::connect(&process, &FProcess::started, [&] { hasStarted = process.outcome().processId > 0; });
    process.start();
    const FProcessOutcome success = finish(process);
    EXPECT_TRUE(hasStarted);
    EXPECT_TRUE(success.isSuccess());
    EXPECT_EQ(success.exitCode, 0);
    EXPECT_EQ(success.message, QString());
    EXPECT_TRUE(success.program.endsWith("/sh")) << success.program.toStdString();
    EXPECT_LE(success.start, success.end);
    EXPECT_EQ(read("stdout.txt"), "done\n");

    const FProcessOutcome code = run(shell("echo first; echo last words >&2; exit 3"));
    EXPECT_EQ(code.cause, Cause::ExitCode);
    EXPECT_EQ(code.exitCode, 3);
    EXPECT_THAT(code.message.toStdString(), HasSubstr("exit code 3"));
    EXPECT_THAT(code.message.toStdString(), HasSubstr(mFolder.filePath("stderr.txt").toStdString()));
    EXPECT_EQ(read("stdout.txt"), "first\n");
    EXPECT_EQ(fileTail(mFolder.filePath("stderr.txt"), 5), QString("last words"));

    const FProcessOutcome fault = run(shell("kill -SEGV $$"));
    EXPECT_EQ(fault.cause, Cause::Signal);
    EXPECT_EQ(fault.signal, SIGSEGV);
    EXPECT_EQ(fault.exitCode, -1);
    EXPECT_THAT(fault.message.toStdString(), HasSubstr("segmentation fault (SIGSEGV)"));
    EXPECT_THAT(run(shell("kill -KILL $$")).message.toStdString(), HasSubstr("killed (SIGKILL)"));
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
    EXPECT_THAT(ofProgram("no-such-program"), HasSubstr("/bin"));
    EXPECT_THAT(ofProgram("./none"), HasSubstr(mFolder.filePath("./none").toStdString()));
    EXPECT_THAT(ofProgram("./plain.sh"), HasSubstr("not executable"));
    EXPECT_THAT(ofProgram(mFolder.path()), HasSubstr("is a folder"));
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
    EXPECT_TRUE(run(setup).isSuccess());
    QByteArray expected = "<" + arguments.join("><").toUtf8() + "><a=b \xc3\xbc>";
    expected += QByteArray("bytes \0 \xff\xfe\n", 11) + mFolder.path().toUtf8() + "\n0\n1\n2\n3\n";
    EXPECT_EQ(read("stdout.txt"), expected);
    close(inherited);

    write("tool", "#!/bin/sh\necho own tool\n", QFile::ExeOwner);
    FProcessSetup bare = shell("");
    bare.program = "tool";
    bare.environment = QStringList{"PATH=/usr/bin:"};
    EXPECT_TRUE(run(bare).isSuccess());
    EXPECT_EQ(read("stdout.txt"), "own tool\n");
}

TEST_F(FProcessTest, losesNoOutput) {
    FProcessSetup setup = shell("head -c 20000000 /dev/zero; echo end >&2");
    setup.standardErrorFile = setup.standardOutputFile;
    EXPECT_TRUE(run(setup).isSuccess());
    EXPECT_EQ(read("stdout.txt").size(), 20'000'004);
    EXPECT_TRUE(read("stdout.txt").endsWith(QByteArray("\0end\n", 5)));
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

// What is done once the family of processes is complete.
struct Ending {
    const char* name;
    const char* script;
    double timeLimit;
    std::function<void(FProcess&, pid_t supervisor)> act;
    Cause cause;

    friend void PrintTo(const Ending& ending, std::ostream* stream) { *stream << ending.script; }
};

class FProcessFamilyTest : public FProcessTest, public testing::WithParamInterface<Ending> {};

TEST_P(FProcessFamilyTest, nothingStaysBehind) {
    FProcessSetup setup = shell(QString(GetParam().script).arg(kFamily));
    setup.timeLimit = GetParam().timeLimit;
    FProcess process(setup);
    process.start();
    const FProcessOutcome outcome = finish(process, [&] {
        ASSERT_TRUE(waitUntil([this] { return hasFamily(); }));
        GetParam().act(process, supervisor());
    });
    EXPECT_EQ(outcome.cause, GetParam().cause) << outcome.message.toStdString();
    EXPECT_EQ(countAlive(), 0);
    EXPECT_FALSE(isAlive(static_cast<pid_t>(outcome.processId)));
}

const auto kDoNothing = [](FProcess&, pid_t) {};
const auto kCancel = [](FProcess& process, pid_t) { process.cancel(); };
const auto kAskSupervisor = [](FProcess&, pid_t supervisor) { kill(supervisor, SIGHUP); };

INSTANTIATE_TEST_SUITE_P(, FProcessFamilyTest,
                         testing::Values(Ending{"end", "%1 exit 0", 0, kDoNothing, Cause::None},
                                         Ending{"stubbornEnd", "trap '' TERM; %1 exit 3", 0, kDoNothing,
                                                Cause::ExitCode},
                                         Ending{"limit", "%1 wait", 1, kDoNothing, Cause::TimeLimit},
                                         Ending{"cancel", "%1 wait", 0, kCancel, Cause::Cancelled},
                                         Ending{"stubborn", "trap '' TERM; %1 wait", 0, kCancel, Cause::Cancelled},
                                         Ending{"hangUp", "%1 wait", 0, kAskSupervisor, Cause::Cancelled}),
                         [](const auto& test) { return test.param.name; });

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
        QFile::remove(mFolder.filePath("pids"));
        QFile::remove(mFolder.filePath("supervisor"));
        QProcess owner;
        owner.start("setsid", {QCoreApplication::applicationDirPath() + "/processOwner", "0.1", mFolder.path(), "sh",
                               "-c", script});
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
    EXPECT_TRUE(run(shell("exit 0")).isSuccess());
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
