#include "host/script/FProjectLock.h"

FProjectLock::State FProjectLock::acquire(const QString& project) {
    if (isHeldOn(project)) {
        return State::Held;
    }
    mHolder.clear();
    auto file = std::make_unique<QLockFile>(project + QStringLiteral(".lock"));
    // A lock is stale only if its process is gone: a project may stay open for weeks.
    file->setStaleLockTime(0);
    if (!file->tryLock(0)) {
        qint64 process = 0;
        QString host;
        QString program;
        if (file->error() != QLockFile::LockFailedError) {
            return State::None;
        }
        file->getLockInfo(&process, &host, &program);
        mHolder = QStringLiteral("%1, process %2 on %3").arg(program).arg(process).arg(host);
        return State::Elsewhere;
    }
    mFile = std::move(file);
    mProject = project;
    return State::Held;
}

void FProjectLock::release() {
    mFile.reset();
    mProject.clear();
    mHolder.clear();
}
