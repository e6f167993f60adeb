#include "host/core/FSavedFile.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

bool isThere(const QString& path) {
    const QFileInfo file(path);
    return file.exists() || file.isSymLink();
}

QString reasonOf(const QSaveFile& file) {
    const bool isFull = file.error() == QFileDevice::NoError || file.error() == QFileDevice::UnspecifiedError;
    return isFull ? QStringLiteral("not all could be written; is the disk full?") : file.errorString();
}

}  // namespace

QString FSavedFile::write(const QString& path, const QByteArray& bytes, const Step& beforeReplacing) {
    QSaveFile file(path);
    // A commit overlooks that its own flush failed.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        return reasonOf(file);
    }
    const QString reason = beforeReplacing ? beforeReplacing() : QString();
    if (!reason.isEmpty()) {
        return reason;
    }
    return file.commit() ? QString() : reasonOf(file);
}

QString FSavedFile::writeBeside(const QString& original, const QString& path, const QByteArray& bytes) {
    if (QFileInfo(path).isSymLink()) {
        QFile::remove(path);
    }
    QSaveFile file(path);
    const bool done = file.open(QIODevice::WriteOnly) && file.setPermissions(QFile::permissions(original)) &&
                      file.write(bytes) == bytes.size() && file.flush() && file.commit();
    return done ? QString() : reasonOf(file);
}

QString FSavedFile::keep(const QString& original, const QString& path) {
    QFile source(original);
    return source.open(QIODevice::ReadOnly) ? writeBeside(original, path, source.readAll()) : source.errorString();
}

QString FSavedFile::freeName(const QString& path) {
    QString name = path;
    for (int number = 2; isThere(name); ++number) {
        name = path + QString::number(number);
    }
    return name;
}
