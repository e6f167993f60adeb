#include "host/run/FSafePath.h"

#include "host/core/FSavedFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

/** @param real  a path without links */
bool isOutside(const QString& folder, const QString& real) {
    const QString root = QFileInfo(folder).canonicalFilePath();
    return !root.isEmpty() && real != root && !real.startsWith(root + QLatin1Char('/'));
}

}  // namespace

bool FSafePath::leadsOut(const QString& fileName) {
    if (!fileName.contains(QLatin1String(".."))) {
        return false;
    }
    QString name = fileName;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    // The joined path contains the folder's own slash, so a name that starts with one stays inside.
    const QString cleaned = QDir::cleanPath(QStringLiteral("./") + name);
    return cleaned == QLatin1String("..") || cleaned.startsWith(QLatin1String("../"));
}

bool FSafePath::isLinkOut(const QString& folder, const QString& fileName) {
    const QFileInfo file(folder + QLatin1Char('/') + fileName);
    return file.isSymLink() && isOutside(folder, file.canonicalFilePath());
}

bool FSafePath::leadsOut(const QString& folder, const QString& fileName) {
    const bool isInFolders = fileName.contains(QLatin1Char('/')) || fileName.contains(QLatin1Char('\\'));
    if (leadsOut(fileName)) {
        return true;
    }
    if (!isInFolders) {
        return false;
    }
    const QString base = QDir::cleanPath(folder);
    QString path = QFileInfo(base + QLatin1Char('/') + fileName).path();
    // Folders that don't exist yet will be created below the last one that does.
    while (path.size() > base.size() && !QFileInfo::exists(path)) {
        path = QFileInfo(path).path();
    }
    return isOutside(base, QFileInfo(path).canonicalFilePath());
}

// One system call gives both the type and the number of hard links.
bool FSafePath::removeLink(const QString& path) {
    struct stat status {};
    const bool isThere = ::lstat(QFile::encodeName(path).constData(), &status) == 0;
    const bool isOwn = S_ISDIR(status.st_mode) || (S_ISREG(status.st_mode) && status.st_nlink == 1);
    return !isThere || isOwn || QFile::remove(path);
}

// In most cases the file is new. An existing file is emptied, not replaced, so that it keeps its permissions.
bool FSafePath::openForWriting(QFile& file) {
    constexpr auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    return file.open(mode | QIODevice::NewOnly) ||
           (removeLink(file.fileName()) && file.open(mode | QIODevice::Truncate));
}

// Replacing the file by QFile would remove the old one first.
QString FSafePath::replace(const QString& path, const QByteArray& bytes) {
    QFile file(path + QStringLiteral(".new"));
    QDir().mkpath(QFileInfo(path).path());
    if (!openForWriting(file)) {
        return file.errorString();
    }
    const bool isWritten = file.write(bytes) == bytes.size();
    const QString reason = isWritten ? QString() : FSavedFile::reasonOf(file);
    file.close();
    if (isWritten &&
        std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(path).constData()) == 0) {
        return {};
    }
    const int error = errno;
    file.remove();
    return isWritten ? QString::fromLocal8Bit(std::strerror(error)) : reason;
}
