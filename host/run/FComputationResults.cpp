#include "host/run/FComputationResults.h"

#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"

FClassData FComputationResults::mClass("FComputationResults", &FResults::mClass);

FComputationResults::FComputationResults(const QString& name, const FExpr<FDesign>& variant,
                                         const FExpr<FExternComputation>& computation)
    : FClass(name, variant), mComputationId(computation ? computation->getDbId() : 0) {}

void FComputationResults::init(const FComputationResults* other) {
    if (other) {
        FResults::init(other);
        mComputationId = other->mComputationId;
        mRun = other->mRun;
    }
}

FComputationResults* FComputationResults::createResults(const FExpr<FDesign>& variant,
                                                        const FExpr<FExternComputation>& computation) const {
    Q_UNUSED(variant)
    Q_UNUSED(computation)
    return nullptr;
}

FExpr<FExternComputation> FComputationResults::getComputation() const {
    return FExpr<FExternComputation>(
        dynamic_cast<FExternComputation*>(FObjectManager::instance()->find(mComputationId)));
}

QString FComputationResults::getKeptText(QString& fault) const {
    if (getVariant()) {
        return {};
    }
    const FExpr<FExternComputation> computation = getComputation();
    if (computation && computation->getCurrentResults().ptr() == this) {
        return computation->getName() + QStringLiteral(".getResults()");
    }
    fault = computation
                ? QStringLiteral("these are results of an earlier run; %1.getResults() is those of the last one")
                      .arg(computation->getName())
                : QStringLiteral("these results belong to no computation of the project");
    return {};
}

QString FComputationResults::getResultPath() const {
    const QString path = FResults::getResultPath();
    const FExpr<FExternComputation> computation = getComputation();
    const bool isOfRun = !path.isEmpty() || mRun || !computation;
    return isOfRun ? path : FPathManager::instance()->getResultPath(computation, getVariant());
}

bool FComputationResults::prepareResults() const {
    return !(mRun && !mRun->isOver()) && !getResultPath().isEmpty();
}

void FComputationResults::followFiles(const QString& from, const QString& to) {
    const FHistoryBlocker blocker;
    for (FManaged* object : FObjectManager::instance()->getManaged(FComputationResults::null())) {
        auto* results = dynamic_cast<FComputationResults*>(object);
        const QString path = results->getResultPath();
        if (path == from) {
            results->setResultPath(to);
        } else if (path == to && results->getRun() && results->getBlock()->handles == 0) {
            FManaged::destroy(results);
        } else if (path == to) {
            results->detachFromFiles();
        }
    }
}
