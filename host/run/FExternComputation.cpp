#include "host/run/FExternComputation.h"

#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRun.h"
#include "host/run/FRunFolder.h"
#include "host/script/FProject.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>

using Cause = FRunRecord::Cause;

FClassData FExternComputation::mClass("FExternComputation", &FManaged::mClass, &FExternComputation::declareCommands);

namespace {

/** The process that has the project's runs, unless it is this one or has ended. */
QString holderOfProject() {
    FProject::instance()->takeOverIfFree();
    return FProject::instance()->getHolder();
}

}  // namespace

/** One run in progress. It keeps the computation, which may leave the model meanwhile. */
struct FExternComputation::Attempt {
    Attempt(FExternComputation* computation, const FProcessSetup& setup)
        : keep(computation),
          run(computation->getName(), setup, computation->getReadFiles()),
          holder(holderOfProject()),
          earlier(FPathManager::instance()->getEarlierDir(computation->getName(), {})),
          folder(setup.workingFolder, earlier) {}

    FExprBase keep;
    FRun run;
    QString holder;  // another process, whose folder it is; empty if there is none
    QString earlier;
    FRunFolder folder;
    bool isStartTold = false;
};

FExternComputation::FExternComputation(const QString& name) : FClass(name) {}

FExternComputation::~FExternComputation() = default;

void FExternComputation::init(const FExternComputation* other) {
    if (other) {
        FManaged::init(other);
        copyAttributes(FExternComputation::mClass, *other);
    }
}

void FExternComputation::leaveModel() {
    cancel();
}

// ---- runs ----

bool FExternComputation::run(bool wait) {
    if (!canRun()) {
        FLogMsg::warning(getName(), QStringLiteral("A run is still in progress"),
                         QStringLiteral("start another when it has ended, or cancel it"));
        return false;
    }
    const QString folder = FPathManager::instance()->getResultsDir(FExpr<FExternComputation>(this), {});
    mAttempt = std::make_shared<Attempt>(this, mProgram.setupIn(folder));
    const std::shared_ptr<Attempt> attempt = mAttempt;
    const FRunRecord& record = attempt->run.record();
    QEventLoop loop;
    connect(&attempt->run, &FRun::ended, this, [this] { finishRun(); });
    connect(&attempt->run, &FRun::ended, &loop, &QEventLoop::quit);
    startRun();
    if (wait && !record.isOver()) {
        loop.exec();
    }
    return wait ? record.isSuccess() : !record.isOver();
}

void FExternComputation::startRun() {
    const std::shared_ptr<Attempt> attempt = mAttempt;
    const FRunScope scope(attempt->run.record().folder);
    // What another process runs there isn't ours to move.
    if (attempt->holder.isEmpty()) {
        FComputationResults::followFiles(attempt->run.record().folder, attempt->earlier + QLatin1Char('/'));
    }
    mRecord = attempt->run.sharedRecord();
    makeResults();
    attempt->run.startWriting();
    setOutOfDate(true);
    stateChanged();
    const QString problem = writeInput();
    if (problem.isEmpty()) {
        runExternalProcess();
    } else {
        attempt->run.fail(Cause::InputNotWritten, problem);
    }
}

void FExternComputation::makeResults() {
    const FHistoryBlocker blocker;
    const auto* type = dynamic_cast<const FComputationResults*>(getResultType());
    mResults = FExpr<FComputationResults>(type->createResults({}, FExpr<FExternComputation>(this)));
    mResults->setResultPath(getWorkingPath());
    mResults->setRun(mRecord);
}

QString FExternComputation::writeInput() const {
    QString problem = prepareRun();
    if (!problem.isEmpty()) {
        // What couldn't be moved aside must not be read.
        mResults->setResultPath(QString());
        return problem;
    }
    if (!copyInputFiles(mAttempt->run.record().folder) || !doExports() || !writeOutputFile()) {
        return QStringLiteral("The input files of the run could not be written; what was logged before tells why.");
    }
    return {};
}

void FExternComputation::runExternalProcess() {
    const std::shared_ptr<Attempt> attempt = mAttempt;
    const QString problem = checkSetup();
    if (!problem.isEmpty()) {
        attempt->run.fail(Cause::ProgramNotStarted, problem);
        return;
    }
    attempt->isStartTold = true;
    computationStarted();
    attempt->run.start();
    stateChanged();
}

QString FExternComputation::prepareRun() const {
    if (!mAttempt) {
        return {};
    }
    if (!mAttempt->holder.isEmpty()) {
        return QStringLiteral(
                   "The project is open elsewhere (%1), whose runs have the same folder. Wait until that ends, or save "
                   "it under another name before you run it here.")
            .arg(mAttempt->holder);
    }
    QStringList named = getReadFiles();
    named << FProgramSettings::outputFile() << FProgramSettings::errorFile();
    QString reason;
    mAttempt->folder.moveAside(named, reason);
    return reason;
}

bool FExternComputation::copyInputFiles(const QString& folder) const {
    Q_UNUSED(folder)
    return true;
}

void FExternComputation::finalizeRun() const {
    if (mAttempt) {
        mAttempt->folder.noteLeft();
    }
}

void FExternComputation::finishRun() {
    const std::shared_ptr<Attempt> attempt = mAttempt;
    const FRunScope scope(attempt->run.record().folder);
    if (attempt->isStartTold) {
        computationFinished();
    }
    finalizeRun();
    if (FComputationResults* results = mResults.ptr()) {
        applyOutputHandles(results);
    }
    report();
    mAttempt = nullptr;
    setOutOfDate(true);
    stateChanged();
    // The attempt is the sender of the signal at work, and may hold the last handle on this computation.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [attempt] {}, Qt::QueuedConnection);
}

void FExternComputation::stateChanged() {
    emit runChanged();
    emit FChanges::instance()->objectChanged(this);
}

void FExternComputation::report() const {
    if (mRecord->cause == Cause::Cancelled) {
        FLogMsg::info(getName(), QStringLiteral("The run was cancelled"), QString());
    } else if (mRecord->cause != Cause::None) {
        FLogMsg::error(getName(), mRecord->failureText());
    } else if (!mRecord->message.isEmpty()) {
        FLogMsg::warning(getName(), mRecord->message);
    }
}

bool FExternComputation::cancel() {
    if (mAttempt) {
        mAttempt->run.cancel();
    }
    return mAttempt != nullptr;
}

bool FExternComputation::wasAborted() const {
    return mRecord && mRecord->cause == Cause::Cancelled;
}

QString FExternComputation::getState() const {
    return mRecord ? mRecord->stateName() : FRunRecord().stateName();
}

int FExternComputation::getExitCode() const {
    return mRecord ? mRecord->exitCode : -1;
}

QString FExternComputation::getWorkingPath() const {
    return mRecord ? mRecord->folder : FPathManager::instance()->getResultPath(FExpr<FExternComputation>(this), {});
}

// ---- results ----

const FObject* FExternComputation::getResultType() const {
    return FResultsGeneric::null();
}

bool FExternComputation::canRereadResults() const {
    return canRun() && (mResults || QDir(getWorkingPath()).exists());
}

bool FExternComputation::rereadResults() {
    if (!canRereadResults()) {
        FLogMsg::warning(getName(), QStringLiteral("There are no results that could be read again"),
                         canRun() ? QStringLiteral("run it first") : QStringLiteral("wait for the end of the run"));
        return false;
    }
    if (!mResults) {
        makeResults();
    }
    processReread(mResults.ptr());
    setOutOfDate(true);
    const QString problem = rereadProblem();
    if (!problem.isEmpty()) {
        FLogMsg::warning(getName(), QStringLiteral("Its results can't all be read again: ") + problem);
    }
    return problem.isEmpty();
}

QString FExternComputation::rereadProblem() const {
    const QStringList files = getReadFiles();
    if (files.isEmpty()) {
        return QStringLiteral("no file is named that they are read from. Give the definition a result template.");
    }
    const QString folder = mResults->getResultPath();
    if (folder.isEmpty()) {
        return QStringLiteral("the last run couldn't begin. Run it again.");
    }
    const QString missing = FRun::missingFiles(folder, files);
    return missing.isEmpty()
               ? QString()
               : QStringLiteral("not in '%1': %2. Run it, or correct the file names of the result templates.")
                     .arg(folder, missing);
}
