#include "host/run/FRun.h"

#include "host/run/FCauseLines.h"
#include "host/run/FResultFiles.h"
#include "host/run/FTextCheck.h"

#include <QFileInfo>

using Cause = FRunRecord::Cause;
using State = FRunRecord::State;

namespace {

State stateOf(Cause cause) {
    switch (cause) {
        case Cause::None:
            return State::Finished;
        case Cause::TimeLimit:
            return State::TimedOut;
        case Cause::Cancelled:
            return State::Cancelled;
        case Cause::UpstreamFailed:
            return State::NotRun;
        default:
            return State::Failed;
    }
}

}  // namespace

FRun::FRun(const QString& computation, const FProcessSetup& setup, const QStringList& readFiles,
           const QStringList& further, const FSuccessRules& rules)
    : mRecord(std::make_shared<FRunRecord>()),
      mReadFiles(readFiles),
      mFurtherFiles(further),
      mRules(rules),
      mProcess(setup) {
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
    mWritten.emplace(mRecord->folder);
    mProcess.start();
    return true;
}

void FRun::cancel() {
    mIsCancelled = true;
    mProcess.cancel();
}

void FRun::takeOutcome(const FProcessOutcome& outcome) {
    static_cast<FProcessOutcome&>(*mRecord) = outcome;
    if (outcome.start.isValid() && mRecord->cause != Cause::Cancelled) {
        checkTexts();
        checkFiles();
        keepCauseLines();
    }
    conclude();
}

void FRun::checkTexts() {
    for (const QString& fault : FTextCheck::faults(mRules, mRecord->folder)) {
        mRecord->addCause(Cause::TextRule, fault);
    }
}

void FRun::addNumberFaults(const QStringList& faults) {
    for (const QString& fault : faults) {
        mRecord->addCause(Cause::NumberRule, fault);
    }
    mRecord->state = stateOf(mRecord->cause);
    keepCauseLines();
}

// Some programs report errors in their standard output.
void FRun::keepCauseLines() {
    if (mRecord->cause == Cause::None) {
        return;
    }
    FCauseLines lines;
    for (const QString& file : {mProcess.setup().standardErrorFile, mProcess.setup().standardOutputFile}) {
        if (!file.isEmpty()) {
            lines.add(mRecord->folder, file);
        }
    }
    mRecord->causeLines = lines.toText();
}

void FRun::checkFiles() {
    const QStringList required = mRules.withoutOptional(mReadFiles);
    const FResultFiles files(mRecord->folder, required);
    const bool isSuccess = mRecord->cause == Cause::None;
    const QString start = isSuccess ? QStringLiteral("'%1' succeeded, but ").arg(mRecord->program) : QString();
    const QString it = isSuccess ? QString() : QStringLiteral("It ");
    if (const QString missing = files.missing(); !missing.isEmpty()) {
        const QString what = start + it + QStringLiteral("didn't write %1.").arg(missing);
        const QString similar = similarFiles(required);
        // The program's own words come before the advice, unless there was another cause before.
        mRecord->addCause(Cause::FileMissing, isSuccess ? what : (what + QLatin1Char(' ') + similar).trimmed(),
                          QStringLiteral("%1Check the file name of the result template, and the output of the program.")
                              .arg(similar));
    }
    if (const QString unreadable = FResultFiles(mRecord->folder, mReadFiles).unreadable(); !unreadable.isEmpty()) {
        mRecord->addCause(Cause::FileMissing, start + QStringLiteral("%1 can't be read.").arg(unreadable),
                          QStringLiteral("Check the file name of the result template."));
    }
    // The file of another run would pass for one of this run.
    if (const QString outside = FResultFiles(mRecord->folder, mFurtherFiles).outside(); !outside.isEmpty()) {
        mRecord->addCause(Cause::FileMissing, start + QStringLiteral("%1 can't be handed on.").arg(outside),
                          QStringLiteral("Have the program write the file itself."));
    }
    if (const QString empty = files.empty(); mRecord->cause == Cause::None && !empty.isEmpty()) {
        const QString warning =
            start + QStringLiteral("wrote nothing to %1. The values of that file are NaN.").arg(empty);
        mRecord->message = (mRecord->message + QLatin1Char(' ') + warning).trimmed();
    }
}

QString FRun::similarFiles(const QStringList& required) const {
    QStringList names;
    for (const QString& file : required) {
        if (mWritten && !QFileInfo::exists(mRecord->folder + file)) {
            names += mWritten->similarTo(file);
        }
    }
    names.removeDuplicates();
    return names.isEmpty()
               ? QString()
               : QStringLiteral("It wrote files with similar names: '%1'. ").arg(names.join(QStringLiteral("', '")));
}

void FRun::conclude() {
    mRecord->state = stateOf(mRecord->cause);
    emit ended();
}
