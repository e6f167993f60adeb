#include "host/core/FSavingFile.h"

#include <QFileInfo>
#include <QRandomGenerator>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <string_view>

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

void removeUnlocked(const QByteArray& path) {
    const int file = ::open(path.constData(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) {
        return;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) == 0) {
        ::unlink(path.constData());
    }
    ::close(file);
}

bool isTemporary(std::string_view name, const QByteArray& prefix) {
    return name.size() == static_cast<std::size_t>(prefix.size()) + letterCount &&
           name.substr(0, prefix.size()) == prefix.constData() &&
           std::all_of(name.end() - letterCount, name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
}

// A run writes each of its files into a folder that may hold thousands, so this only reads names.
void removeLeft(const QString& path) {
    const QFileInfo info(path);
    const QByteArray folder = QFile::encodeName(info.path());
    const QByteArray prefix = QFile::encodeName(prefixOf(info.fileName()));
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.constData()), &::closedir);
    while (const dirent* entry = entries ? ::readdir(entries.get()) : nullptr) {
        if (isTemporary(static_cast<const char*>(entry->d_name), prefix)) {
            removeUnlocked(folder + '/' + static_cast<const char*>(entry->d_name));
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
