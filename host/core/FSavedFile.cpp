#include "host/core/FSavedFile.h"

#include "host/core/FMerixCtrl.h"
#include "host/core/FSavingFile.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace {

constexpr qint64 blockSize = qint64{1} << 20;

using Fill = std::function<bool(QFile&)>;

bool isThere(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

Fill bytesOf(const QByteArray& bytes) {
    return [&bytes](QFile& file) { return file.write(bytes) == bytes.size(); };
}

Fill restOf(QFile& source) {
    return [&source](QFile& file) {
        QByteArray block;
        do {
            block = source.read(blockSize);
            if (file.write(block) != block.size()) {
                return false;
            }
        } while (!block.isEmpty());
        return source.error() == QFileDevice::NoError;
    };
}

/** The file that a link leads to, which needn't exist. */
QString targetOf(const QString& path) {
    constexpr int mostLinks = 100;
    QFileInfo file(path);
    for (int i = 0; i < mostLinks && file.isSymLink(); ++i) {
        file.setFile(file.symLinkTarget());
    }
    return file.isSymLink() ? path : file.filePath();
}

/** Writes the new file and has it replace the old one. */
QString writeAndReplace(QFile& file, const QString& path, const Fill& fill, const FSavedFile::Step& beforeReplacing) {
    if (!fill(file) || !file.flush()) {
        return FSavedFile::reasonOf(file);
    }
    const QString reason = beforeReplacing ? beforeReplacing() : QString();
    return reason.isEmpty() && !FSavingFile::replace(file, path) ? qt_error_string(errno) : reason;
}

QString replace(const QString& name, const Fill& fill, const FSavedFile::Step& beforeReplacing = {}) {
    if (FMerixCtrl::instance()->isReadOnly()) {
        return {};
    }
    const QString path = targetOf(name);
    const QFileInfo old(path);
    if (old.isDir()) {
        return QStringLiteral("it is a folder");
    }
    if (old.exists() && !old.isWritable()) {
        return QStringLiteral("the existing file \"%1\" is write-protected").arg(path);
    }
    QFile file;
    if (!FSavingFile::open(file, path)) {
        return file.errorString();
    }
    if (old.exists()) {
        file.setPermissions(old.permissions());
    }
    QString reason = writeAndReplace(file, path, fill, beforeReplacing);
    if (!reason.isEmpty()) {
        // What can't be written makes the closing fail, and with it a removal that includes it.
        file.close();
        QFile::remove(file.fileName());
    }
    return reason;
}

QString replaceBeside(const QString& path, QFile::Permissions permissions, const Fill& fill) {
    if (QFile link(path); QFileInfo(path).isSymLink() && !link.remove()) {
        return link.errorString();
    }
    return replace(path, [&](QFile& file) {
        // Not every file system has permissions. Without the owner's, the file couldn't be replaced the next time.
        file.setPermissions(permissions | QFileDevice::WriteOwner);
        return fill(file);
    });
}

/** The reason for a failed copy: the source's, if reading it failed. */
QString reasonOfCopy(const QFile& source, const QString& reason) {
    return source.error() == QFileDevice::NoError ? reason : source.errorString();
}

}  // namespace

QString FSavedFile::write(const QString& path, const QByteArray& bytes, const Step& beforeReplacing) {
    return replace(path, bytesOf(bytes), beforeReplacing);
}

QString FSavedFile::copy(QFile& source, const QString& path) {
    return reasonOfCopy(source, replace(path, restOf(source)));
}

// Closing the temporary file forgets that bytes are missing.
QString FSavedFile::take(QFile& temporary, const QString& path, bool isWritten) {
    const bool isWhole = temporary.flush() && isWritten && temporary.seek(0);
    const QString reason = isWhole ? copy(temporary, path) : reasonOf(temporary);
    temporary.close();
    temporary.remove();
    return reason;
}

QString FSavedFile::writeBeside(const QString& original, const QString& path, const QByteArray& bytes) {
    const QFile::Permissions own = QFile::ReadOwner | QFile::WriteOwner;
    return replaceBeside(path, QFile::exists(original) ? QFile::permissions(original) : own, bytesOf(bytes));
}

QString FSavedFile::keep(QFile& original, const QString& path) {
    return reasonOfCopy(original, replaceBeside(path, original.permissions(), restOf(original)));
}

QString FSavedFile::keep(const QString& original, const QString& path) {
    QFile source(original);
    return source.open(QIODevice::ReadOnly) ? keep(source, path) : source.errorString();
}

bool FSavedFile::holds(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.size() == bytes.size() && file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

QString FSavedFile::reasonOf(const QFileDevice& file) {
    const bool isFull = file.error() == QFileDevice::NoError || file.error() == QFileDevice::UnspecifiedError;
    return isFull ? QStringLiteral("not all could be written; is the disk full?") : file.errorString();
}

QString FSavedFile::freeName(const QString& path) {
    QString name = path;
    for (int number = 2; isThere(name); ++number) {
        name = path + QString::number(number);
    }
    return name;
}
