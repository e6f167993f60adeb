#include "host/core/FSavedFile.h"

#include <QFile>
#include <QSaveFile>

QString FSavedFile::write(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    const bool done = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return done ? QString() : file.errorString();
}

QString FSavedFile::copy(const QString& from, const QString& to) {
    QFile source(from);
    return source.open(QIODevice::ReadOnly) ? write(to, source.readAll()) : source.errorString();
}
