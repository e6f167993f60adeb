#include "host/run/supervisor/FSupervisor.h"

#include "host/run/supervisor/FProcessTree.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

using namespace std::chrono_literals;

namespace {

constexpr auto killInterval = 20ms;
// Only a process that waits for a dead disk, or belongs to another user, survives SIGKILL for long.
constexpr auto killTime = 5s;

int openSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : {SIGCHLD, SIGTERM, SIGINT, SIGHUP, SIGQUIT}) {
        sigaddset(&set, number);
    }
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK);
}

bool readStopSignal(int signals) {
    bool stop = false;
    signalfd_siginfo info;
    while (read(signals, &info, sizeof info) == sizeof info) {
        stop = stop || info.ssi_signo != SIGCHLD;
    }
    return stop;
}

std::size_t countRunning(const std::vector<FProcessEntry>& processes) {
    return static_cast<std::size_t>(
        std::count_if(processes.begin(), processes.end(), [](const FProcessEntry& entry) { return !entry.hasEnded; }));
}

// A stopped process handles SIGTERM only after SIGCONT. A negative number is a group.
void ask(pid_t process) {
    kill(process, SIGTERM);
    kill(process, SIGCONT);
}

}  // namespace

long long wallTime() {
    const auto time = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
}

FSupervisor::FSupervisor(int control, Milliseconds limit, Milliseconds grace)
    : mControl(control), mSignals(openSignals()), mLimit(limit), mGrace(grace) {
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

FProgramEnd FSupervisor::watch(pid_t program) {
    mProgram = program;
    if (mLimit > 0ms) {
        mDeadline = Clock::now() + mLimit;
    }
    while (reap() && mPhase != Phase::GivenUp) {
        advance();
        waitForEvent();
    }
    if (mPhase == Phase::GivenUp) {
        mEnd.remaining = descendants(getpid()).size();
        mEnd.time = hasEnded() ? mEnd.time : wallTime();
    }
    return mEnd;
}

// This process adopts orphans, so when it has no children, there are no descendants left.
bool FSupervisor::reap() {
    for (;;) {
        siginfo_t info{};
        if (waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) != 0) {
            return false;
        }
        if (info.si_pid == 0) {
            return true;
        }
        if (info.si_pid == mProgram) {
            noteEnd(info.si_code == CLD_EXITED, info.si_status);
        }
        waitid(P_PID, static_cast<id_t>(info.si_pid), &info, WEXITED);
    }
}

// The group has the number of its leader, which can be reused once the leader is reaped: this is the last chance.
void FSupervisor::noteEnd(bool exited, int value) {
    mEnd.exited = exited;
    mEnd.value = value;
    mEnd.time = wallTime();
    if (mPhase == Phase::Running) {
        mEnd.terminated = countRunning(descendants(getpid()));
        ask(-mProgram);
    }
}

void FSupervisor::advance() {
    if (mPhase != Phase::Running) {
        if (isDue()) {
            killAll();
        }
    } else if (hasEnded()) {
        beginEnding("itself");
    } else if (mIsStopWanted) {
        beginEnding("stop");
    } else if (isDue()) {
        beginEnding("limit");
    }
}

// Each process gets SIGTERM once: many programs take a second one as "at once". Processes that they start to clean up
// get none.
void FSupervisor::beginEnding(const char* reason) {
    mEnd.reason = reason;
    mPhase = Phase::Asked;
    mDeadline = Clock::now() + mGrace;
    if (!hasEnded()) {
        ask(-mProgram);
    }
    for (const FProcessEntry& process : descendants(getpid())) {
        if (process.group != mProgram) {
            ask(process.pid);
        }
    }
}

// Repeated, since a process may start while the others are being searched.
void FSupervisor::killAll() {
    if (mPhase == Phase::Asked) {
        mPhase = Phase::Killing;
        mGiveUp = Clock::now() + killTime;
    }
    for (const FProcessEntry& process : descendants(getpid())) {
        kill(process.pid, SIGKILL);
    }
    mDeadline = Clock::now() + killInterval;
    if (mDeadline >= mGiveUp) {
        mPhase = Phase::GivenUp;
    }
}

void FSupervisor::waitForEvent() {
    const auto now = Clock::now();
    const auto longest = std::min(mDeadline, now + 1h);
    const auto timeout = std::chrono::ceil<Milliseconds>(longest - now).count();
    pollfd events[] = {{mControl, POLLIN, 0}, {mSignals, POLLIN, 0}};
    poll(events, 2, static_cast<int>(std::max<long long>(timeout, 0)));
    if (events[0].revents != 0) {
        mIsStopWanted = true;
        mControl = -1;  // a closed pipe would wake poll again and again; poll ignores negative numbers
    }
    if (readStopSignal(mSignals)) {
        mIsStopWanted = true;
    }
}
