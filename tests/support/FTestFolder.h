#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

/** A folder that lasts as long as a test; its files are named relative to it. */
class FTestFolder {
 public:
    explicit FTestFolder(const QString& pattern = QDir::tempPath() + "/merix-test-XXXXXX") : mFolder(pattern) {}

    QString path(const QString& name = QString()) const { return QDir(mFolder.path()).filePath(name); }
    bool has(const QString& name) const { return QFileInfo(path(name)).exists(); }
    /** "none" if the file can't be read. */
    QByteArray read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    /** Makes the folders that are needed, too; gives the path. */
    QString write(const QString& name, const QByteArray& bytes, QFile::Permissions more = {}) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path(name).toStdString();
        file.write(bytes);
        file.setPermissions(file.permissions() | more);
        return file.fileName();
    }

 private:
    QTemporaryDir mFolder;
};
