#include "host/core/FSavedFile.h"

#include "host/core/FMerixCtrl.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr qint64 blockSize = qint64{1} << 20;

using Fill = std::function<bool(QSaveFile&)>;

bool isThere(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

Fill bytesOf(const QByteArray& bytes) {
    return [&bytes](QSaveFile& file) { return file.write(bytes) == bytes.size(); };
}

Fill restOf(QFile& source) {
    return [&source](QSaveFile& file) {
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

QString replace(const QString& path, const Fill& fill, const FSavedFile::Step& beforeReplacing = {}) {
    if (FMerixCtrl::instance()->isReadOnly()) {
        return {};
    }
    QSaveFile file(path);
    // A commit overlooks that its own flush failed.
    if (!file.open(QIODevice::WriteOnly) || !fill(file) || !file.flush()) {
        return FSavedFile::reasonOf(file);
    }
    const QString reason = beforeReplacing ? beforeReplacing() : QString();
    if (!reason.isEmpty()) {
        return reason;
    }
    return file.commit() ? QString() : FSavedFile::reasonOf(file);
}

QString replaceBeside(const QString& path, QFile::Permissions permissions, const Fill& fill) {
    if (QFile link(path); QFileInfo(path).isSymLink() && !link.remove()) {
        return link.errorString();
    }
    return replace(path, [&](QSaveFile& file) {
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

QString FSavedFile::writeBeside(const QString& original, const QString& path, const QByteArray& bytes) {
    return replaceBeside(path, QFile::permissions(original), bytesOf(bytes));
}

QString FSavedFile::keep(QFile& original, const QString& path) {
    return reasonOfCopy(original, replaceBeside(path, original.permissions(), restOf(original)));
}

QString FSavedFile::keep(const QString& original, const QString& path) {
    QFile source(original);
    return source.open(QIODevice::ReadOnly) ? keep(source, path) : source.errorString();
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
