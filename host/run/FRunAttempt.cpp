#include "host/run/FRunAttempt.h"

#include "host/core/FLogMsg.h"
#include "host/run/FExternComputation.h"
#include "host/run/FNumberCheck.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRunLock.h"
#include "host/run/FRunTally.h"

#include <QCoreApplication>
#include <QEventLoop>

using Cause = FRunRecord::Cause;

namespace {

/** More than the supervisor needs to terminate the program of a killed process. */
constexpr int longestWait = 12'000;

FProcessSetup withLock(FProcessSetup setup, const QString& earlier) {
    setup.lockFile = FRunFolder::lockFile(earlier);
    return setup;
}

}  // namespace

FRunAttempt::FRunAttempt(FExternComputation* computation, const FProcessSetup& setup, const QString& earlier,
                         const QStringList& readFiles, const QStringList& further)
    : mKeep(computation),
      mComputation(computation),
      mRun(computation->getName(), withLock(setup, earlier), readFiles, further, computation->getSuccessRules()),
      mEarlier(earlier),
      mReadFiles(readFiles),
      mFurtherFiles(further),
      mRules(computation->getSuccessRules()),
      mInterruptLine(std::in_place, computation->getName(), QStringLiteral("Interrupted while its run was in progress"),
                     QStringLiteral("Its unfinished files are in '%1'").arg(record()->folder)),
      mFolder(setup.workingFolder, earlier),
      mStore(earlier) {
    connect(&mRun, &FRun::ended, this, &FRunAttempt::finish);
}

bool FRunAttempt::execute(bool wait) {
    const std::shared_ptr<const FRunRecord> run = record();
    QEventLoop loop;
    connect(&mRun, &FRun::ended, &loop, &QEventLoop::quit);
    start();
    if (wait && !run->isOver()) {
        loop.exec();
    }
    return wait ? run->isSuccess() : !run->isOver();
}

void FRunAttempt::start() {
    FPathManager::instance()->setLastRun(record()->folder);
    const FRunScope scope(record()->folder);
    mRefusal = findRefusal();
    if (mRefusal.isEmpty()) {
        FComputationResults::followFiles(record()->folder, mEarlier + QLatin1Char('/'));
    }
    mRun.startWriting();
    FComputationResults* results = mComputation->takeRun(record());
    mComputation->stateChanged(results);
    const QString problem = writeInput(results);
    if (problem.isEmpty()) {
        mComputation->runExternalProcess(results);
    } else {
        mRun.fail(Cause::InputNotWritten, problem);
    }
}

void FRunAttempt::skip(Cause cause, const QString& reason) {
    FComputationResults* results = mComputation->takeRun(record());
    // The files in the folder are those of an earlier run.
    results->setResultPath(QString());
    mRun.fail(cause, reason);
}

// Files of another process's run must not be moved.
QString FRunAttempt::findRefusal() {
    const QString holder = FExternComputation::getHolderOfRuns();
    if (!holder.isEmpty()) {
        return QStringLiteral(
                   "The project is open elsewhere (%1), and its runs there use the same folder. Wait until it is "
                   "closed there, or save it under another name before you run it here.")
            .arg(holder);
    }
    if (!FRunLock(FRunFolder::lockFile(mEarlier)).waitUntilFree(longestWait)) {
        return QStringLiteral(
                   "A program of another run is still running in the folder '%1' and may write files there. End it, or "
                   "wait for its end.")
            .arg(record()->folder);
    }
    const QString fault = mComputation->getFileNameFault();
    return fault.isEmpty() ? mFolder.fault(mReadFiles + mFurtherFiles) : fault;
}

QString FRunAttempt::writeInput(FComputationResults* results) {
    const QString problem = mComputation->prepareRun();
    if (!problem.isEmpty()) {
        // Files that couldn't be moved aside must not be read.
        results->setResultPath(QString());
        return problem;
    }
    const bool isCopied = mComputation->copyInputFiles(record()->folder) && mComputation->doExports();
    if (!isCopied || !mComputation->writeOutputFile()) {
        const QString reason = isCopied ? mComputation->getInputFault() : QString();
        return reason.isEmpty() ? QStringLiteral(
                                      "The input files of the run could not be written. The message before this one "
                                      "gives the reason.")
                                : QStringLiteral("The input files of the run could not be written: %1.").arg(reason);
    }
    mRun.noteChangedInput(mComputation->compareInput());
    mRun.setSetUp(mComputation->describeSetUp());
    return {};
}

QString FRunAttempt::makeRoom() {
    if (!mRefusal.isEmpty()) {
        return mRefusal;
    }
    QString reason;
    const QStringList named = mReadFiles + mFurtherFiles + mRules.textFiles() +
                              QStringList{FProgramSettings::outputFile(), FProgramSettings::errorFile()};
    mHasRoom = mFolder.moveAside(named, reason);
    if (const int count = mFolder.leftByInterruption(); count > 0) {
        FLogMsg::warning(record()->computation,
                         QStringLiteral("The last run in '%1' was interrupted; what wasn't there before it (%2) is "
                                        "moved to '%3'")
                             .arg(record()->folder, QStringLiteral("entries: %1").arg(count), mEarlier),
                         QStringLiteral("If it includes a file of yours, move it back before the next run"));
    }
    return mHasRoom ? mStore.write(*record()) : reason;
}

bool FRunAttempt::startProgram() {
    const QString problem = mComputation->checkSetup();
    if (!problem.isEmpty()) {
        mRun.fail(Cause::ProgramNotStarted, problem);
        return false;
    }
    mIsStarted = true;
    mComputation->computationStarted();
    return mRun.start();
}

void FRunAttempt::finish() {
    const FRunScope scope(record()->folder);
    FComputationResults* results = mComputation->getCurrentResults().ptr();
    if (mIsStarted) {
        mComputation->computationFinished();
    }
    mComputation->finalizeRun();
    if (results) {
        mComputation->applyOutputHandles(results);
    }
    const FResultsGeneric* read = checkNumbers(results);
    store();
    FRunTally::add(record()->state);
    report();
    if (read) {
        read->reportReading();
    }
    // This object is the receiver of the signal being handled, and may hold the last handle on the computation.
    const std::shared_ptr<FRunAttempt> self = mComputation->endRun();
    mInterruptLine.reset();
    mComputation->stateChanged(results);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [self] {}, Qt::QueuedConnection);
}

const FResultsGeneric* FRunAttempt::checkNumbers(const FComputationResults* results) {
    const auto* tables = dynamic_cast<const FResultsGeneric*>(results);
    if (!tables || !mRules.needsNumbers() || !record()->isSuccess() || !tables->readSilently()) {
        return nullptr;
    }
    mRun.addNumberFaults(FNumberCheck::faults(mRules, tables->listedTables()));
    return tables;
}

void FRunAttempt::store() const {
    const QString problem = mHasRoom ? mStore.write(*record()) : QString();
    if (!problem.isEmpty()) {
        FLogMsg::warning(record()->computation, problem);
    }
}

void FRunAttempt::report() const {
    const FRunRecord& run = mRun.record();
    if (run.cause == Cause::Cancelled) {
        FLogMsg::info(run.computation, QStringLiteral("The run was cancelled"), QString());
    } else if (run.cause == Cause::UpstreamFailed) {
        FLogMsg::warning(run.computation, run.message);
    } else if (run.cause != Cause::None) {
        FLogMsg::error(run.computation, run.failureText());
    } else if (!run.message.isEmpty()) {
        FLogMsg::warning(run.computation, run.message);
    }
}
