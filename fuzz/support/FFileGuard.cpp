#include "fuzz/support/FFileGuard.h"

#include "fuzz/support/FFuzzCheck.h"

#include <QFile>
#include <QProcess>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdarg>
#include <cstdio>

namespace {

enum class Reaction { None, Note, End };

Reaction reaction = Reaction::None;
int noted = 0;

void meet(const char* call, const char* path) {
    if (reaction == Reaction::End) {
        reaction = Reaction::None;
        FFuzzCheck::fail(QStringLiteral("a text that is data made a call of %1(%2)").arg(call, path));
    }
    noted += reaction == Reaction::Note ? 1 : 0;
}

template <class F>
F* original(F* /*replacement*/, const char* name) {
    return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// These replace the functions of the C library, also for the calls that Qt makes.
extern "C" {

int open64(const char* path, int flags, ...) {
    meet("open", path);
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = va_arg(arguments, mode_t);
    va_end(arguments);
    static auto* const next = original(open64, "open64");
    return next(path, flags, mode);
}

int mkdir(const char* path, mode_t mode) noexcept {
    meet("mkdir", path);
    static auto* const next = original(mkdir, "mkdir");
    return next(path, mode);
}

int unlink(const char* path) noexcept {
    meet("unlink", path);
    static auto* const next = original(unlink, "unlink");
    return next(path);
}

int rename(const char* from, const char* to) noexcept {
    meet("rename", from);
    static auto* const next = original(rename, "rename");
    return next(from, to);
}

int pipe2(int* ends, int flags) noexcept {
    meet("pipe2", "");
    static auto* const next = original(pipe2, "pipe2");
    return next(ends, flags);
}
}

FFileGuard::FFileGuard() {
    reaction = Reaction::End;
}

FFileGuard::~FFileGuard() {
    reaction = Reaction::None;
}

void FFileGuard::checkItself() {
    reaction = Reaction::Note;
    noted = 0;
    QFile(QStringLiteral("/dev/null")).open(QIODevice::ReadOnly);
    FFuzzCheck::holds(noted == 1, "the guard doesn't see that a file is opened");
    QProcess process;
    process.start(QStringLiteral("/bin/true"), QStringList());
    process.waitForFinished();
    FFuzzCheck::holds(noted > 1, "the guard doesn't see that a process is started");
    reaction = Reaction::None;
}
