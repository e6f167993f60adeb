#include "host/core/FStandardOutput.h"

#include "host/core/FLogMsg.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <iostream>
#include <utility>

namespace {

bool isBroken = false;

FStandardOutput::Copy& copyOfOutput() {
    static FStandardOutput::Copy none;
    return none;
}

/** Notes and logs the first failure. */
bool check() {
    if (!isBroken && !std::cout) {
        isBroken = true;
        const QString reason = QString::fromLocal8Bit(std::strerror(errno));
        FLogMsg::error(QStringLiteral("standard output"), QStringLiteral("can't write to it: ") + reason,
                       QStringLiteral("The output is incomplete"));
    }
    return !isBroken;
}

}  // namespace

bool FStandardOutput::write(const QString& text) {
    FLogMsg::endLine();
    if (copyOfOutput()) {
        copyOfOutput()(text);
    }
    errno = 0;
    std::cout << text.toStdString() << std::flush;
    return check();
}

FStandardOutput::Copy FStandardOutput::setCopy(Copy copy) {
    return std::exchange(copyOfOutput(), std::move(copy));
}

bool FStandardOutput::isGood() {
    errno = 0;
    std::cout.flush();
    return check();
}

void FStandardOutput::reserve() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (::fcntl(descriptor, F_GETFD) < 0) {
            // Gets the lowest free number. Writing to the standard output has to fail, as without it.
            [[maybe_unused]] const int opened = ::open("/dev/null", descriptor == STDERR_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}
