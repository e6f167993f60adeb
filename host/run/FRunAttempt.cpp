#include "host/run/FRunAttempt.h"

#include "host/core/FLogMsg.h"
#include "host/run/FExternComputation.h"
#include "host/run/FNumberCheck.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/script/FProject.h"

#include <QCoreApplication>
#include <QEventLoop>

using Cause = FRunRecord::Cause;

namespace {

/** The process that owns the project's runs, unless it is this one or has ended. */
QString holderOfProject() {
    FProject::instance()->takeOverIfFree();
    return FProject::instance()->getHolder();
}

}  // namespace

FRunAttempt::FRunAttempt(FExternComputation* computation, const FProcessSetup& setup, const QString& earlier,
                         const QStringList& readFiles)
    : mKeep(computation),
      mComputation(computation),
      mRun(computation->getName(), setup, readFiles, computation->getSuccessRules()),
      mHolder(holderOfProject()),
      mEarlier(earlier),
      mReadFiles(readFiles),
      mRules(computation->getSuccessRules()),
      mInterruptLine(computation->getName(), QStringLiteral("Interrupted while its run was in progress"),
                     QStringLiteral("Its unfinished files are in '%1'").arg(record()->folder)),
      mFolder(setup.workingFolder, earlier) {
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
    // Files of another process's run must not be moved.
    if (mHolder.isEmpty()) {
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

QString FRunAttempt::writeInput(FComputationResults* results) {
    const QString problem = mComputation->prepareRun();
    if (!problem.isEmpty()) {
        // Files that couldn't be moved aside must not be read.
        results->setResultPath(QString());
        return problem;
    }
    if (!mComputation->copyInputFiles(record()->folder) || !mComputation->doExports() ||
        !mComputation->writeOutputFile()) {
        return QStringLiteral(
            "The input files of the run could not be written; see the messages above for the reason.");
    }
    mRun.noteChangedInput(mComputation->compareInput());
    return {};
}

QString FRunAttempt::makeRoom() {
    if (!mHolder.isEmpty()) {
        return QStringLiteral(
                   "The project is open elsewhere (%1), and its runs there use the same folder. Wait until it is "
                   "closed there, or save it under another name before you run it here.")
            .arg(mHolder);
    }
    QString reason;
    mFolder.moveAside(
        mReadFiles + mRules.textFiles() + QStringList{FProgramSettings::outputFile(), FProgramSettings::errorFile()},
        reason);
    return reason;
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
    report();
    if (read) {
        read->reportReading();
    }
    // This object is the receiver of the signal being handled, and may hold the last handle on the computation.
    const std::shared_ptr<FRunAttempt> self = mComputation->endRun();
    mComputation->stateChanged(results);
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [self] {}, Qt::QueuedConnection);
}

const FResultsGeneric* FRunAttempt::checkNumbers(const FComputationResults* results) {
    const auto* tables = dynamic_cast<const FResultsGeneric*>(results);
    if (!tables || !mRules.needsNumbers() || !record()->isSuccess() || !tables->readSilently()) {
        return nullptr;
    }
    mRun.addNumberFaults(FNumberCheck::faults(mRules, tables->tables()));
    return tables;
}

void FRunAttempt::report() const {
    const FRunRecord& run = mRun.record();
    if (run.cause == Cause::Cancelled) {
        FLogMsg::info(run.computation, QStringLiteral("The run was cancelled"), QString());
    } else if (run.cause != Cause::None) {
        FLogMsg::error(run.computation, run.failureText());
    } else if (!run.message.isEmpty()) {
        FLogMsg::warning(run.computation, run.message);
    }
}
