#pragma once

#include "tests/support/FTestFolder.h"

#include <QProcess>
#include <QStringList>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

/**
 * Tests that start the program and check its output and exit code. Everything that it writes, including temporary
 * folders, is in a folder of the test, whose name contains blanks, quotes and an umlaut.
 */
class FProgramTest : public testing::Test, public FTestFolder {
 protected:
    FProgramTest() : FTestFolder(QDir::tempPath() + "/läuft \"hier\" 'gut' $HOME-XXXXXX") {}

    struct Outcome {
        int exitCode = -1;
        QString output;
        QString errors;
    };

    /** Starts merix as `merix` does, without waiting for it. */
    void start(QProcess& program, const QStringList& arguments, const QStringList& environment = {}) const;
    /** Runs merix in the test's folder, with these environment variables ("NAME=value") in addition to the test's. */
    Outcome merix(const QStringList& arguments, const QString& input = QString(),
                  const QStringList& environment = {}) const;
    /** Writes the script to `test.merix` in the folder and runs it. */
    Outcome script(const QString& text, const QStringList& arguments = {}, const QStringList& environment = {}) const;
    /** The path of a file that runs of "comp" wrote, relative to the folder, if only one merix has run it. */
    QString runFile(const QString& name) const;
};
