#include "host/core/FSavingFile.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cstdio>

namespace {

constexpr int letterCount = 6;

QString prefixOf(const QString& path) {
    return path + QStringLiteral(".saving-");
}

QString newName(const QString& path) {
    QString name = prefixOf(path);
    for (int i = 0; i < letterCount; ++i) {
        name += QLatin1Char(static_cast<char>('a' + QRandomGenerator::global()->bounded(26)));
    }
    return name;
}

void removeUnlocked(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) {
        ::unlink(name.constData());
    }
    ::close(file);
}

void removeLeft(const QString& path) {
    const QFileInfo info(path);
    const QRegularExpression pattern(
        QStringLiteral("^%1[a-z]{%2}$").arg(QRegularExpression::escape(prefixOf(info.fileName()))).arg(letterCount));
    QDirIterator names(info.path(), QDir::Files | QDir::Hidden);
    while (names.hasNext()) {
        const QString name = names.next();
        if (pattern.match(names.fileName()).hasMatch()) {
            removeUnlocked(name);
        }
    }
}

}  // namespace

bool FSavingFile::open(QFile& file, const QString& path) {
    constexpr int mostAttempts = 100;
    removeLeft(path);
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        file.setFileName(newName(path));
        if (!file.open(QIODevice::ReadWrite | QIODevice::NewOnly)) {
            if (!file.exists()) {
                return false;
            }
            continue;
        }
        // Another save may have taken it for one that was left, in the moment before it had its lock.
        ::flock(file.handle(), LOCK_EX);
        if (file.exists()) {
            return true;
        }
        file.close();
    }
    return false;
}

bool FSavingFile::replace(QFile& file, const QString& path) {
    const bool isOnDisk = file.flush() && ::fsync(file.handle()) == 0;
    return isOnDisk &&
           std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0;
}
