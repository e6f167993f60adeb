#include "host/run/FProcessText.h"

#include "host/run/FProcessOutcome.h"
#include "host/run/FProcessSetup.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

#include <cerrno>
#include <cstring>

namespace {

QString absoluteFile(const FProcessSetup& setup, const QString& file) {
    return QDir(setup.workingFolder).absoluteFilePath(file);
}

QString errorOutputHint(const FProcessSetup& setup) {
    const QString& file = setup.standardErrorFile;
    if (file.isEmpty() || QFileInfo(absoluteFile(setup, file)).size() == 0) {
        return QString();
    }
    return QStringLiteral(" Its error output is in '%1'.").arg(file);
}

/** What an exit code usually means; empty if nothing is known about it. */
QString codeNote(const FProcessSetup& setup, const FProcessOutcome& outcome) {
    const int code = outcome.exitCode;
    const int signal = code - 128;
    if (signal > 0 && sigabbrev_np(signal) != nullptr) {
        return QStringLiteral(" (128 + %1: most likely a process that it had started was ended by a signal, %2)")
            .arg(QString::number(signal), FProcessText::signalName(signal));
    }
    if (code == 127) {
        return QStringLiteral(" (most likely a command that it calls was not found)");
    }
    if (code == 126) {
        return QStringLiteral(" (most likely a command that it calls is not executable)");
    }
    if (setup.exitCodes == QList<int>{0}) {
        return {};
    }
    QStringList allowed;
    for (const int success : setup.exitCodes) {
        allowed.append(QString::number(success));
    }
    return QStringLiteral(" (allowed: %1)").arg(allowed.join(QStringLiteral(", ")));
}

QString reasonOfSystem(int errorNumber) {
    return QString::fromLocal8Bit(std::strerror(errorNumber));
}

QString executionFailure(const QString& program, int errorNumber) {
    switch (errorNumber) {
        case ENOENT:
            return QStringLiteral(
                       "The program '%1' can't be started: the interpreter that its first line names, or a "
                       "library loader it needs, is missing. Install it, or correct the first line.")
                .arg(program);
        case ENOEXEC:
            return QStringLiteral(
                       "The program '%1' can't be started: it is neither an executable for this machine nor a script "
                       "with a first line such as '#!/bin/sh'. Add that line, or choose another program.")
                .arg(program);
        case E2BIG:
            return QStringLiteral(
                       "The program '%1' can't be started: its arguments and environment are too long for the "
                       "system. Shorten them, or pass them in a file.")
                .arg(program);
        default:
            return QStringLiteral("The program '%1' can't be started: %2.").arg(program, reasonOfSystem(errorNumber));
    }
}

QString fileFailure(const FProcessSetup& setup, const QString& program, const QString& what, const QString& file,
                    int errorNumber) {
    return QStringLiteral("The program '%1' was not started: %2 '%3' can't be opened: %4. Check its path and rights.")
        .arg(program, what, absoluteFile(setup, file), reasonOfSystem(errorNumber));
}

}  // namespace

QString FProcessText::signalName(int signal) {
    const char* const name = sigabbrev_np(signal);
    const char* const words = sigdescr_np(signal);
    if (name == nullptr || words == nullptr) {
        return QStringLiteral("signal %1").arg(signal);
    }
    return QStringLiteral("%1 (SIG%2)").arg(QString::fromLatin1(words).toLower(), QLatin1String(name));
}

QString FProcessText::ending(const FProcessSetup& setup, const FProcessOutcome& outcome) {
    switch (outcome.cause) {
        case FProcessOutcome::Cause::TimeLimit: {
            // The shortest exact text, without an exponent.
            const QString limit = QLocale::c().toString(setup.timeLimit, 'f', QLocale::FloatingPointShortest);
            return QStringLiteral("'%1' was ended by its time limit of %2 s. Raise the limit if it needs more time.")
                       .arg(outcome.program, limit) +
                   errorOutputHint(setup);
        }
        case FProcessOutcome::Cause::Signal:
            return QStringLiteral("'%1' was ended by a signal: %2.").arg(outcome.program, signalName(outcome.signal)) +
                   errorOutputHint(setup);
        case FProcessOutcome::Cause::ExitCode:
            return QStringLiteral("'%1' failed with exit code %2%3.")
                       .arg(outcome.program, QString::number(outcome.exitCode), codeNote(setup, outcome)) +
                   errorOutputHint(setup);
        case FProcessOutcome::Cause::Cancelled:
            return QStringLiteral("'%1' was cancelled.").arg(outcome.program);
        default:
            return QString();
    }
}

QString FProcessText::startFailure(const FProcessSetup& setup, const QString& program, const QString& step,
                                   int errorNumber) {
    if (step == QLatin1String("folder")) {
        return fileFailure(setup, program, QStringLiteral("its working folder"), setup.workingFolder, errorNumber);
    }
    if (step == QLatin1String("input")) {
        return fileFailure(setup, program, QStringLiteral("the file of its standard input"), setup.standardInputFile,
                           errorNumber);
    }
    if (step == QLatin1String("output")) {
        return fileFailure(setup, program, QStringLiteral("the file of its standard output"), setup.standardOutputFile,
                           errorNumber);
    }
    if (step == QLatin1String("error")) {
        return fileFailure(setup, program, QStringLiteral("the file of its error output"), setup.standardErrorFile,
                           errorNumber);
    }
    if (step == QLatin1String("lock")) {
        return QStringLiteral(
                   "The program '%1' was not started: '%2', which shows that its folder is in use, can't be "
                   "locked (%3). Wait until the program that runs in that folder has ended.")
            .arg(program, setup.lockFile, reasonOfSystem(errorNumber));
    }
    return executionFailure(program, errorNumber);
}

QString FProcessText::supervisorMissing(const QString& program, const QString& supervisor) {
    return QStringLiteral(
               "The program '%1' was not started: the supervisor '%2', which belongs to this application, is "
               "missing or not executable. Install it again, or set MERIX_SUPERVISOR to its path.")
        .arg(program, supervisor);
}

QString FProcessText::supervisorFailure(const QString& program, const QString& reason) {
    return QStringLiteral(
               "The program '%1' was not started: starting its supervisor failed (%2). Check the length of "
               "its arguments and how many processes run.")
        .arg(program, reason);
}

QString FProcessText::supervisorLost(const QString& program) {
    return QStringLiteral(
               "The supervisor of '%1' was killed, and the program with it. Look for processes that the "
               "program may have left, and run it again.")
        .arg(program);
}

QString FProcessText::remaining(const QString& program, int count) {
    return QStringLiteral(
               "Some processes of '%1' could not be killed (number: %2) and may still write files. End them "
               "manually.")
        .arg(program, QString::number(count));
}

QString FProcessText::terminated(const QString& program, int count) {
    return QStringLiteral(
               "'%1' ended, but had left processes running, which were terminated (number: %2). Files that they were "
               "writing may be incomplete. Let the program wait for the processes that it starts.")
        .arg(program, QString::number(count));
}
