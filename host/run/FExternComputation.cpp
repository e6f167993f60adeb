#include "host/run/FExternComputation.h"

#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FLogMsg.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FRunAttempt.h"

#include <QDir>
#include <QTimer>

#include <utility>

FClassData FExternComputation::mClass("FExternComputation", &FManaged::mClass, &FExternComputation::declareCommands);

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
    if (FSetUpCheck::substituteRun(*this)) {
        return false;
    }
    if (!canRun()) {
        FLogMsg::warning(getName(), QStringLiteral("A run is still in progress"),
                         QStringLiteral("start another when it has ended, or cancel it"));
        return false;
    }
    mSetUpReport.log(FSetUpCheck::problemsOf(*this, true));
    FPathManager* paths = FPathManager::instance();
    const QString folder = paths->getResultsDir(FExpr<FExternComputation>(this), {});
    FProcessSetup setup = mProgram.setupIn(folder);
    setup.exitCodes = mRules.exitCodes;
    const auto attempt =
        std::make_shared<FRunAttempt>(this, setup, paths->getEarlierDir(getName(), {}), getReadFiles());
    mAttempt = attempt;
    return attempt->execute(wait);
}

void FExternComputation::triggerRunByTimer() {
    if (std::exchange(mIsTriggered, true)) {
        return;
    }
    QTimer::singleShot(0, this, [this] {
        mIsTriggered = false;
        if (isInModel() && canRun()) {
            run(false);
        }
    });
}

FComputationResults* FExternComputation::takeRun(const std::shared_ptr<const FRunRecord>& run) {
    mRecord = run;
    mResults.make(*this, run);
    return mResults.get().ptr();
}

std::shared_ptr<FRunAttempt> FExternComputation::endRun() {
    return std::exchange(mAttempt, nullptr);
}

void FExternComputation::stateChanged(FComputationResults* results) {
    setOutOfDate(true);
    emit runChanged();
    for (FManaged* object : {static_cast<FManaged*>(this), static_cast<FManaged*>(results)}) {
        if (object && object->isInModel()) {
            emit FChanges::instance()->objectChanged(object);
        }
    }
}

QString FExternComputation::compareInput() {
    mInput.take(getWrittenValues());
    return mInput.text();
}

QString FExternComputation::prepareRun() const {
    return mAttempt ? mAttempt->makeRoom() : QString();
}

bool FExternComputation::copyInputFiles(const QString& folder) const {
    Q_UNUSED(folder)
    return true;
}

void FExternComputation::runExternalProcess(FComputationResults* results) {
    const std::shared_ptr<FRunAttempt> attempt = mAttempt;
    if (attempt && attempt->startProgram()) {
        stateChanged(results);
    }
}

void FExternComputation::finalizeRun() const {
    if (mAttempt) {
        mAttempt->noteLeft();
    }
}

bool FExternComputation::writeInput(const QString& folder) const {
    const FRunScope scope(folder);
    return copyInputFiles(folder) && doExports() && writeOutputFile();
}

bool FExternComputation::cancel() {
    if (mAttempt) {
        mAttempt->cancel();
    }
    return mAttempt != nullptr;
}

const FRunRecord& FExternComputation::getLastRun() const {
    static const FRunRecord none;
    return mRecord ? *mRecord : none;
}

QString FExternComputation::getWorkingPath() const {
    return mRecord ? mRecord->folder : FPathManager::instance()->getResultPath(FExpr<FExternComputation>(this), {});
}

// ---- results ----

const FObject* FExternComputation::getResultType() const {
    return FResultsGeneric::null();
}

bool FExternComputation::prepareResults() const {
    return getCurrentResults() && getCurrentResults()->prepareResults();
}

bool FExternComputation::canRereadResults() const {
    return canRun() && (getCurrentResults() || QDir(getWorkingPath()).exists());
}

bool FExternComputation::refetchResults() {
    if (!canRereadResults()) {
        return false;
    }
    if (!getCurrentResults()) {
        mResults.make(*this, mRecord);
    }
    processReread(getCurrentResults().ptr());
    setOutOfDate(true);
    return true;
}

FExpr<FComputationResults> FExternComputation::readFolder(const QString& folder) {
    const FHistoryBlocker blocker;
    const auto* type = dynamic_cast<const FComputationResults*>(getResultType());
    FExpr<FComputationResults> results(type ? type->createResults({}, FExpr<FExternComputation>(this)) : nullptr);
    if (results) {
        results->setResultPath(folder);
        processReread(results.ptr());
    }
    return results;
}

bool FExternComputation::rereadResults() {
    if (FSetUpCheck::substituteRun(*this)) {
        return false;
    }
    if (!refetchResults()) {
        FLogMsg::warning(getName(), QStringLiteral("There are no results that can be read again"),
                         canRun() ? QStringLiteral("run it first") : QStringLiteral("wait for the end of the run"));
        return false;
    }
    const QString problem = mResults.rereadProblem(getReadFiles(), mRules);
    if (!problem.isEmpty()) {
        FLogMsg::warning(getName(), QStringLiteral("Not all of its results can be read again: ") + problem);
    }
    return problem.isEmpty();
}
