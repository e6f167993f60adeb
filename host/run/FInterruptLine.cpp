#include "host/run/FInterruptLine.h"

#include "host/core/FLogMsg.h"

#include <unistd.h>

#include <atomic>
#include <csignal>
#include <string>
#include <utility>
#include <vector>

namespace {

using Line = std::pair<const FInterruptLine*, std::string*>;

std::vector<Line>& lines() {
    static std::vector<Line> all;
    return all;
}

// What the signal handler reads. A replaced line isn't deleted before the next is replaced: the handler may be
// printing it in another thread.
std::atomic<const std::string*> current = nullptr;
static_assert(std::atomic<const std::string*>::is_always_lock_free);
std::string* replaced = nullptr;

void publish() {
    current = lines().empty() ? nullptr : lines().back().second;
}

// Calls only what is allowed in a signal handler. The signal ends the process as soon as the handler returns.
void printAndEnd(int number) {
    const std::string* line = current;
    if (line) {
        const ssize_t ignored = write(STDERR_FILENO, line->data(), line->size());
        static_cast<void>(ignored);
    }
    raise(number);
}

}  // namespace

FInterruptLine::FInterruptLine(const QString& source, const QString& message, const QString& consequence) {
    const FLogMsg text{FLogMsg::Kind::Info, source, message, consequence, FLogMsg::Stream::StandardError, {}};
    // A terminal has just printed "^C".
    const std::string start = isatty(STDERR_FILENO) ? "\n" : "";
    lines().emplace_back(this, new std::string(start + text.toLine().toStdString() + '\n'));
    publish();
}

FInterruptLine::~FInterruptLine() {
    for (auto line = lines().begin(); line != lines().end(); ++line) {
        if (line->first == this) {
            delete std::exchange(replaced, line->second);
            lines().erase(line);
            break;
        }
    }
    publish();
}

void FInterruptLine::install() {
    for (const int number : {SIGINT, SIGTERM}) {
        struct sigaction present {};
        if (sigaction(number, nullptr, &present) == 0 && present.sa_handler == SIG_DFL) {
            struct sigaction printing {};
            printing.sa_handler = printAndEnd;
            printing.sa_flags = static_cast<int>(SA_RESETHAND);
            sigaction(number, &printing, nullptr);
        }
    }
}
