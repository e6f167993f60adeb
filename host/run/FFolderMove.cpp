#include "host/run/FFolderMove.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <array>
#include <climits>
#include <cstdio>

namespace {

// QFile would make the target of a relative link absolute.
QString copyLink(const QByteArray& from, const QByteArray& to) {
    std::array<char, PATH_MAX> target{};
    if (::readlink(from.constData(), target.data(), target.size() - 1) > 0 &&
        ::symlink(target.data(), to.constData()) == 0) {
        return {};
    }
    return QStringLiteral("the link %1: %2").arg(QFile::decodeName(from), qt_error_string());
}

QString copyFile(const QFileInfo& from, const QString& to) {
    QFile source(from.filePath());
    if (!source.copy(to)) {
        return QStringLiteral("%1: %2").arg(from.filePath(), source.errorString());
    }
    QFile copy(to);
    if (copy.open(QIODevice::ReadWrite)) {
        copy.setFileTime(from.lastModified(), QFileDevice::FileModificationTime);
    }
    return {};
}

// Named pipes and sockets don't contain anything.
QString copyContents(const QString& from, const QString& to) {
    if (!QDir().mkpath(to)) {
        return QStringLiteral("the folder '%1' can't be created").arg(to);
    }
    constexpr auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QString reason;
    for (const QFileInfo& entry : QDir(from).entryInfoList(all)) {
        const QString target = to + QLatin1Char('/') + entry.fileName();
        if (entry.isSymLink()) {
            reason = copyLink(QFile::encodeName(entry.filePath()), QFile::encodeName(target));
        } else if (entry.isDir()) {
            reason = copyContents(entry.filePath(), target);
        } else if (entry.isFile()) {
            reason = copyFile(entry, target);
        }
        if (!reason.isEmpty()) {
            break;
        }
    }
    return reason;
}

}  // namespace

QString FFolderMove::move(const QString& from, const QString& to) {
    QDir().mkpath(QFileInfo(to).path());
    // The system replaces an empty folder, but no other, and moves nothing to another disk.
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0) {
        return {};
    }
    const QString reason = copyContents(from, to);
    if (reason.isEmpty()) {
        QDir(from).removeRecursively();
    }
    return reason;
}
