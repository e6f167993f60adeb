#include "host/run/FRun.h"

#include "host/run/FCauseLines.h"
#include "host/run/FTextCheck.h"

#include <QDir>
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
        default:
            return State::Failed;
    }
}

}  // namespace

FRun::FRun(const QString& computation, const FProcessSetup& setup, const QStringList& readFiles,
           const FSuccessRules& rules)
    : mRecord(std::make_shared<FRunRecord>()),
      mReadFiles(rules.withoutOptional(readFiles)),
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
        findMissingFiles();
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
    if (missing.isEmpty()) {
        return;
    }
    const QString what = mRecord->cause == Cause::None
                             ? QStringLiteral("'%1' succeeded, but didn't write %2.").arg(mRecord->program, missing)
                             : QStringLiteral("It didn't write %1.").arg(missing);
    mRecord->addCause(Cause::FileMissing, what,
                      similarFiles() + QStringLiteral("Check the file name of the result template, and the output of "
                                                      "the program."));
}

QString FRun::similarFiles() const {
    QStringList names;
    for (const QString& file : mReadFiles) {
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
