#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/** Tests of the program as a program: a folder of its own, and what it says and returns. */
class FProgramTest : public testing::Test {
 protected:
    struct Outcome {
        int exitCode = -1;
        QString output;
        QString errors;
    };

    /** Runs merix in the test's folder; the environment variables are set besides those of the test. */
    Outcome merix(const QStringList& arguments, const QString& input = QString(),
                  const QStringList& environment = {}) const;
    /** Writes the script to the folder and runs it. */
    Outcome script(const QString& text, const QStringList& arguments = {}, const QStringList& environment = {}) const;
    QString path(const QString& name) const { return mFolder.filePath(name); }
    void write(const QString& name, const QByteArray& content) const;
    QByteArray read(const QString& name) const;

    QTemporaryDir mFolder;
};
