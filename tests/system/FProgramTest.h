#pragma once

#include "tests/support/FTestFolder.h"

#include <QProcess>
#include <QStringList>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}

/**
 * Tests of the program as a program: what it says and returns. All that it writes, temporary folders too, lies below a
 * folder of the test, whose name has blanks, quotes and an umlaut.
 */
class FProgramTest : public testing::Test, public FTestFolder {
 protected:
    FProgramTest() : FTestFolder(QDir::tempPath() + "/läuft \"hier\" 'gut' $HOME-XXXXXX") {}

    struct Outcome {
        int exitCode = -1;
        QString output;
        QString errors;
    };

    /** Starts merix as the next one does, without waiting. */
    void start(QProcess& program, const QStringList& arguments, const QStringList& environment = {}) const;
    /** Runs merix in the test's folder; the environment variables are set besides those of the test. */
    Outcome merix(const QStringList& arguments, const QString& input = QString(),
                  const QStringList& environment = {}) const;
    /** Writes the script to the folder and runs it. */
    Outcome script(const QString& text, const QStringList& arguments = {}, const QStringList& environment = {}) const;
    /** The name of a file in the folder of the runs of "comp", for tests that run it in one merix only. */
    QString runFile(const QString& name) const;
};
