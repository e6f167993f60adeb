#include "host/run/FCurrentResults.h"

#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"
#include "host/run/FResultFiles.h"

#include <utility>

void FCurrentResults::make(const FExternComputation& computation, const std::shared_ptr<const FRunRecord>& run) {
    const FHistoryBlocker blocker;
    const auto* type = dynamic_cast<const FComputationResults*>(computation.getResultType());
    // Those of a run that never began have no files to go with.
    const FExpr<FComputationResults> former = std::exchange(mResults, {});
    const std::shared_ptr<const FRunRecord> formerRun = former ? former->getRun() : nullptr;
    if (formerRun && formerRun->isSkipped() && former->getBlock()->handles == 1) {
        FManaged::destroy(former.ptr());
    }
    mResults = FExpr<FComputationResults>(
        type->createResults(computation.getDesign(), FExpr<FExternComputation>(&computation)));
    mDesign = computation.getDesign();
    mResults->setResultPath(computation.getWorkingPath());
    mResults->setRun(run);
}

void FCurrentResults::take(const FExternComputation& computation) {
    mDesign = computation.getDesign();
    mResults = {};
    if (!FPathManager::instance()->hasRoot()) {
        return;
    }
    const QString folder = FPathManager::instance()->getResultPath(FExpr<FExternComputation>(&computation), mDesign);
    for (FManaged* object : FObjectManager::instance()->getManaged(FComputationResults::null())) {
        auto* results = dynamic_cast<FComputationResults*>(object);
        const bool isKnown = mDesign || results->getRun();
        if (isKnown && results->getComputationId() == computation.getDbId() &&
            FDesign::isSame(results->getVariant(), mDesign) && results->getResultPath() == folder) {
            mResults = FExpr<FComputationResults>(results);
        }
    }
}

QString FCurrentResults::rereadProblem(const QStringList& names, const FSuccessRules& rules) const {
    if (names.isEmpty()) {
        return QStringLiteral("no file to read is named. Add a result template to the definition.");
    }
    const QString folder = mResults->getResultPath();
    if (folder.isEmpty()) {
        return QStringLiteral("the last run couldn't start. Run it again.");
    }
    const FResultFiles files(folder, rules.withoutOptional(names));
    const QString fault = files.faultOfNames();
    if (!fault.isEmpty()) {
        return fault;
    }
    if (const QString missing = files.missing(); !missing.isEmpty()) {
        return QStringLiteral("not in '%1': %2. Run it, or correct the file names of the result templates.")
            .arg(folder, missing);
    }
    if (const QString unreadable = FResultFiles(folder, names).unreadable(); !unreadable.isEmpty()) {
        return QStringLiteral(
                   "in '%1', there is something else than a file of numbers: %2. Run it, or correct the "
                   "file names of the result templates.")
            .arg(folder, unreadable);
    }
    const QString empty = files.empty();
    return empty.isEmpty() ? QString() : QStringLiteral("empty files in '%1': %2. Run it again.").arg(folder, empty);
}
