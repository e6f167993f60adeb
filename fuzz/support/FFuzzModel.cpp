#include "fuzz/support/FFuzzModel.h"

#include "fuzz/support/FFileGuard.h"
#include "fuzz/support/FFuzzCheck.h"
#include "host/core/FLogMsg.h"
#include "host/core/FPrototypes.h"
#include "host/script/FProject.h"
#include "host/script/FProjectText.h"

#include <QCoreApplication>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdio>

namespace {

/** A file in memory: a disk would be what such a program waits for. */
class MemoryFile {
 public:
    explicit MemoryFile(const QByteArray& bytes) : mFile(memfd_create("project", 0)) {
        const auto size = static_cast<size_t>(bytes.size());
        FFuzzCheck::holds(write(mFile, bytes.constData(), size) == bytes.size(), "a file in memory takes its bytes");
    }
    ~MemoryFile() { close(mFile); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(mFile); }

 private:
    int mFile;
};

}  // namespace

void FFuzzModel::prepare() {
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static QCoreApplication application(count, arguments);
    FLogMsg::setSink([](const FLogMsg& /*message*/) {});
    FPrototypes::buildPending();
    FFileGuard::checkItself();
}

void FFuzzModel::clear() {
    FFuzzCheck::holds(FProject::instance()->create(), "the model can be emptied");
}

int FFuzzModel::guarded(const std::function<void()>& action, bool tells) {
    int errors = 0;
    const FLogMsg::Sink before = FLogMsg::setSink([&errors, tells](const FLogMsg& message) {
        errors += message.kind == FLogMsg::Kind::Error ? 1 : 0;
        if (tells) {
            std::fprintf(stderr, "%s\n", message.toLine().toUtf8().constData());
        }
    });
    {
        const FFileGuard guard;
        action();
    }
    FLogMsg::setSink(before);
    return errors;
}

int FFuzzModel::restore(const QByteArray& project, bool tells) {
    const MemoryFile file(project);
    FProjectText text;
    if (!text.load(file.path())) {
        return -1;
    }
    int errors = 0;
    guarded([&text, &errors] { errors = text.restore(); }, tells);
    return errors;
}
