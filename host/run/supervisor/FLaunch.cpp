#include "host/run/supervisor/FLaunch.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace {

FLaunchResult failure(const char* step, int errorNumber) {
    return {-1, step, errorNumber};
}

// Opening a named pipe without a partner would block for ever, hence O_NONBLOCK, which the program doesn't expect.
bool redirect(const char* file, int flags, int target) {
    const int opened = open(file, flags | O_NONBLOCK | O_CLOEXEC, 0666);
    if (opened < 0) {
        return false;
    }
    const int status = fcntl(opened, F_GETFL);
    const bool done = fcntl(opened, F_SETFL, status & ~O_NONBLOCK) == 0 && dup2(opened, target) == target;
    close(opened);
    return done;
}

// O_APPEND lets both output streams share a file.
constexpr int outputFlags = O_WRONLY | O_CREAT | O_TRUNC | O_APPEND;

[[noreturn]] void becomeProgram(char** command, int failurePipe) {
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    signal(SIGPIPE, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    execv(command[0], command);
    const int errorNumber = errno;
    const ssize_t written = write(failurePipe, &errorNumber, sizeof errorNumber);
    _exit(written == sizeof errorNumber ? 0 : 1);
}

// The pipe closes without data when execv succeeds.
int readFailure(int pipe) {
    int errorNumber = 0;
    return read(pipe, &errorNumber, sizeof errorNumber) == sizeof errorNumber ? errorNumber : 0;
}

FLaunchResult startProgram(char** command) {
    int failurePipe[2];
    if (pipe2(failurePipe, O_CLOEXEC) != 0) {
        return failure("program", errno);
    }
    const pid_t pid = fork();
    if (pid == 0) {
        becomeProgram(command, failurePipe[1]);
    }
    const int forkError = errno;
    close(failurePipe[1]);
    const int errorNumber = pid < 0 ? forkError : readFailure(failurePipe[0]);
    close(failurePipe[0]);
    if (errorNumber == 0) {
        return {pid, nullptr, 0};
    }
    if (pid > 0) {
        waitpid(pid, nullptr, 0);
    }
    return failure("program", errorNumber);
}

}  // namespace

FLaunchResult launch(const FLaunch& what) {
    if (chdir(what.folder) != 0) {
        return failure("folder", errno);
    }
    if (!redirect(what.input, O_RDONLY, STDIN_FILENO)) {
        return failure("input", errno);
    }
    if (!redirect(what.output, outputFlags, STDOUT_FILENO)) {
        return failure("output", errno);
    }
    if (!redirect(what.error, outputFlags, STDERR_FILENO)) {
        return failure("error", errno);
    }
    return startProgram(what.command);
}
