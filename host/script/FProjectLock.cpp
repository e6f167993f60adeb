#include "host/script/FProjectLock.h"

#include "host/core/FLogMsg.h"

#include <QDateTime>
#include <QFileInfo>
#include <QSysInfo>

#include <cerrno>
#include <csignal>

namespace {

constexpr int secondsToWrite = 3;

QString nameOf(const QString& project) {
    return project + QStringLiteral(".lock");
}

QString holderText(const QString& program, qint64 process, const QString& host) {
    return QStringLiteral("%1, process %2 on %3").arg(program, QString::number(process), host);
}

QString holderText(const QLockFile& file, const QString& name) {
    qint64 process = 0;
    QString host;
    QString program;
    return file.getLockInfo(&process, &host, &program) ? holderText(program, process, host)
                                                       : QStringLiteral("its lock \"%1\" can't be read").arg(name);
}

// Qt removes it only if no living process has it.
bool removeUnreadable(QLockFile& file, const QString& project) {
    qint64 process = 0;
    QString host;
    QString program;
    const QDateTime written = QFileInfo(nameOf(project)).lastModified();
    const bool isOld = written.secsTo(QDateTime::currentDateTime()) > secondsToWrite;
    if (file.getLockInfo(&process, &host, &program) || !isOld || !file.removeStaleLockFile()) {
        return false;
    }
    FLogMsg::warning(project, QStringLiteral("the lock file was empty or damaged"),
                     QStringLiteral("It was replaced, since no process of this computer has it"));
    return true;
}

}  // namespace

FProjectLock::State FProjectLock::acquire(const QString& project) {
    if (isHeldOn(project)) {
        return State::Held;
    }
    mHolder.clear();
    auto file = std::make_unique<QLockFile>(nameOf(project));
    // A lock is stale only if its process is gone: a project may stay open for weeks.
    file->setStaleLockTime(0);
    const bool isFree = file->tryLock(0) || (removeUnreadable(*file, project) && file->tryLock(0));
    if (!isFree) {
        if (file->error() != QLockFile::LockFailedError) {
            return State::None;
        }
        mHolder = holderText(*file, nameOf(project));
        return State::Elsewhere;
    }
    mFile = std::move(file);
    mProject = project;
    return State::Held;
}

// Of another computer, nobody knows whether the process lives.
QString FProjectLock::holderOf(const QString& project) {
    const QLockFile file(nameOf(project));
    qint64 process = 0;
    QString host;
    QString program;
    if (!file.getLockInfo(&process, &host, &program)) {
        return {};
    }
    const bool isGone =
        host == QSysInfo::machineHostName() && ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
    return isGone ? QString() : holderText(program, process, host);
}

void FProjectLock::release() {
    mFile.reset();
    mProject.clear();
    mHolder.clear();
}
