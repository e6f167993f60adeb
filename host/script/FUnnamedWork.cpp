#include "host/script/FUnnamedWork.h"

#include "host/script/FAutosave.h"
#include "host/script/FProjectLock.h"

#include <QDir>
#include <QFile>

namespace {

QDir folder() {
    const QString state = qEnvironmentVariable("XDG_STATE_HOME");
    return (state.isEmpty() ? QDir::homePath() + QStringLiteral("/.local/state") : state) + QStringLiteral("/merix");
}

bool isFree(const QString& name) {
    FProjectLock lock;
    return lock.acquire(name) == FProjectLock::State::Held;
}

}  // namespace

QString FUnnamedWork::newName() {
    constexpr int most = 1000;
    if (!folder().mkpath(QStringLiteral("."))) {
        return {};
    }
    for (int number = 1; number <= most; ++number) {
        const QString name = folder().filePath(QStringLiteral("unnamed-%1.mrx").arg(number));
        if (!QFile::exists(FAutosave::pathOf(name)) && isFree(name)) {
            return name;
        }
    }
    return {};
}

QStringList FUnnamedWork::left() {
    const QString ending = FAutosave::pathOf(QString());
    QStringList names;
    for (const QFileInfo& file :
         folder().entryInfoList({QStringLiteral("unnamed-*.mrx") + ending}, QDir::Files, QDir::Time)) {
        const QString name = file.absoluteFilePath().chopped(ending.size());
        if (isFree(name)) {
            names.append(name);
        }
    }
    return names;
}

void FUnnamedWork::remove(const QString& name) {
    if (isFree(name)) {
        QFile::remove(FAutosave::pathOf(name));
    }
}
