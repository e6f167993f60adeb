#include "host/run/supervisor/FLaunch.h"
#include "host/run/supervisor/FSupervisor.h"

#include <fcntl.h>
#include <linux/close_range.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

// Runs one program until it and all its descendants have ended. Standard input is the control pipe: closing its other
// end requests the end of the program. The report goes to standard output, one line per event:
//   failed STEP ERRNO                             not started; STEP as in FLaunchResult, or "lock"
//   started PID TIME                              milliseconds since 1970
//   ended REASON exit|signal VALUE TIME REMAINING TERMINATED   as in FProgramEnd

namespace {

enum Argument { Limit = 1, Grace, Folder, Lock, Input, Output, Error, Program };

FSupervisor::Milliseconds duration(const char* text) {
    constexpr long long year = 1000LL * 3600 * 24 * 365;
    return FSupervisor::Milliseconds(std::clamp(std::atoll(text), 0LL, 100 * year));
}

// In its own session, this process gets no signals that a terminal sends to the group of its parent.
void detachFromTerminal() {
    setsid();
    signal(SIGPIPE, SIG_IGN);
    signal(SIGCHLD, SIG_DFL);
}

// The lock is released when this process has ended. The program doesn't inherit it.
bool lock(const char* file) {
    if (*file == '\0') {
        return true;
    }
    const int opened = open(file, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0666);
    return opened >= 0 && flock(opened, LOCK_EX | LOCK_NB) == 0;
}

int supervise(char** argv, int control, int report) {
    if (!lock(argv[Lock])) {
        dprintf(report, "failed lock %d\n", errno);
        return 1;
    }
    FSupervisor supervisor(control, duration(argv[Limit]), duration(argv[Grace]));
    const FLaunchResult program = launch({argv[Folder], argv[Input], argv[Output], argv[Error], argv + Program});
    if (program.failedStep != nullptr) {
        dprintf(report, "failed %s %d\n", program.failedStep, program.errorNumber);
        return 1;
    }
    dprintf(report, "started %d %lld\n", program.pid, wallTime());
    const FProgramEnd end = supervisor.watch(program.pid);
    dprintf(report, "ended %s %s %d %lld %zu %zu\n", end.reason, end.exited ? "exit" : "signal", end.value, end.time,
            end.remaining, end.terminated);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc <= Program) {
        std::fputs("merix-supervisor: merix starts this to run a program; don't start it manually\n", stderr);
        return 2;
    }
    detachFromTerminal();
    close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
    const int control = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, 3);
    const int report = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    return supervise(argv, control, report);
}
