#pragma once

#include <sys/types.h>

#include <chrono>
#include <cstddef>

/** How a program ended. */
struct FProgramEnd {
    const char* reason = "itself";  //!< what ended it: "itself", "limit" or "stop"
    bool exited = true;             //!< false if it died by a signal
    int value = -1;                 //!< exit code or number of the signal; -1 if it could not be ended
    long long time = 0;             //!< of its end, or of giving up; milliseconds since 1970
    std::size_t remaining = 0;      //!< processes that could not be killed
    std::size_t terminated = 0;     //!< processes that it had left running when it ended by itself
};

/**
 * Watches a started program until it and all its descendants have ended.
 *
 * It sends them SIGTERM, and SIGKILL after the grace period, when the time limit is reached, when the control pipe is
 * closed, when this process gets a signal to end, and when the program has ended but has left processes.
 */
class FSupervisor {
 public:
    using Milliseconds = std::chrono::milliseconds;

    /** Makes this process adopt orphans, and blocks the signals that it waits for. A limit of 0 is no limit. */
    FSupervisor(int control, Milliseconds limit, Milliseconds grace);

    /** Watches the leader of a process group, which was started after the construction of this object. Call it once. */
    FProgramEnd watch(pid_t program);

 private:
    using Clock = std::chrono::steady_clock;
    enum class Phase { Running, Asked, Killing, GivenUp };

    bool reap();
    void noteEnd(bool exited, int value);
    void advance();
    void beginEnding(const char* reason);
    void killAll();
    void waitForEvent();
    bool hasEnded() const { return mEnd.time != 0; }
    bool isDue() const { return Clock::now() >= mDeadline; }

    int mControl;
    int mSignals;
    Milliseconds mLimit;
    Milliseconds mGrace;
    Clock::time_point mDeadline = Clock::time_point::max();
    Clock::time_point mGiveUp = Clock::time_point::max();
    Phase mPhase = Phase::Running;
    bool mIsStopWanted = false;
    pid_t mProgram = -1;
    FProgramEnd mEnd;
};

/** The time of day in milliseconds since 1970. */
long long wallTime();
