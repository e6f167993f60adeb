#include "host/run/FRun.h"

#include "host/run/FFileTail.h"

#include <QDir>
#include <QFileInfo>

using Cause = FRunRecord::Cause;
using State = FRunRecord::State;

namespace {

constexpr int mostLines = 5;

State stateOf(Cause cause) {
    switch (cause) {
        case Cause::None:
            return State::Finished;
        case Cause::TimeLimit:
            return State::TimedOut;
        case Cause::Cancelled:
            return State::Cancelled;
        default:
            return State::Failed;
    }
}

}  // namespace

FRun::FRun(const QString& computation, const FProcessSetup& setup, const QStringList& readFiles)
    : mRecord(std::make_shared<FRunRecord>()), mReadFiles(readFiles), mProcess(setup) {
    mRecord->computation = computation;
    mRecord->folder = mProcess.setup().workingFolder + QLatin1Char('/');
    mRecord->program = setup.program;
    connect(&mProcess, &FProcess::started, this, [this] { mRecord->start = mProcess.outcome().start; });
    connect(&mProcess, &FProcess::finished, this, &FRun::takeOutcome);
}

void FRun::fail(Cause cause, const QString& message) {
    mRecord->cause = cause;
    mRecord->message = message;
    conclude();
}

bool FRun::start() {
    if (mIsCancelled) {
        const auto end = [this] { fail(Cause::Cancelled, QStringLiteral("The run was cancelled before it started.")); };
        QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
        return false;
    }
    mRecord->state = State::Running;
    mProcess.start();
    return true;
}

void FRun::cancel() {
    mIsCancelled = true;
    mProcess.cancel();
}

void FRun::takeOutcome(const FProcessOutcome& outcome) {
    static_cast<FProcessOutcome&>(*mRecord) = outcome;
    findMissingFiles();
    if (mRecord->cause != Cause::None && outcome.start.isValid()) {
        keepLastLines();
    }
    conclude();
}

// Some programs report errors in their standard output.
void FRun::keepLastLines() {
    for (const QString& file : {mProcess.setup().standardErrorFile, mProcess.setup().standardOutputFile}) {
        if (mRecord->lastLines.isEmpty() && !file.isEmpty()) {
            mRecord->lastLines = fileTail(QDir(mRecord->folder).filePath(file), mostLines);
            mRecord->lastLinesFile = file;
        }
    }
}

QString FRun::missingFiles(const QString& folder, const QStringList& files) {
    QStringList missing;
    for (const QString& file : files) {
        if (!QFileInfo::exists(folder + file)) {
            missing.append(QLatin1Char('\'') + file + QLatin1Char('\''));
        }
    }
    return missing.join(QStringLiteral(", "));
}

void FRun::findMissingFiles() {
    const QString missing = missingFiles(mRecord->folder, mReadFiles);
    if (mRecord->cause == Cause::None && !missing.isEmpty()) {
        mRecord->cause = Cause::FileMissing;
        mRecord->message = QStringLiteral(
                               "'%1' succeeded, but didn't write %2. Check the file name of the result "
                               "template, and the output of the program.")
                               .arg(mRecord->program, missing);
    }
}

void FRun::conclude() {
    mRecord->state = stateOf(mRecord->cause);
    emit ended();
}
