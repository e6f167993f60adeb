#include "host/run/FComputationResults.h"

#include "host/core/FHistory.h"
#include "host/core/FObjectManager.h"
#include "host/run/FExternComputation.h"
#include "host/run/FPathManager.h"
#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    using F = FComputationResults;
    table.member<F>("getState", &F::getStateText).query();
    table.member<F>("getSetUpChanges", &F::getSetUpChanges).query();
}

/** Names with a colon at the end stand for contents, which are too long to be shown. */
QString changeText(const QString& name, const QMap<QString, QString>& before, const QMap<QString, QString>& now) {
    const auto shown = [&name](const QMap<QString, QString>& values) {
        const QString value = values.value(name, QStringLiteral("missing"));
        return value.isEmpty() ? QStringLiteral("empty") : value;
    };
    return name.endsWith(QLatin1Char(':')) ? QStringLiteral("%1 changed").arg(name.chopped(1))
                                           : QStringLiteral("%1 was %2, is %3").arg(name, shown(before), shown(now));
}

}  // namespace

FClassData FComputationResults::mClass("FComputationResults", &FResults::mClass, &commands);

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
    const bool isOfRun = !path.isEmpty() || mRun || !computation || getVariant().isDetached();
    return isOfRun ? path : FPathManager::instance()->getResultPath(computation, getVariant());
}

bool FComputationResults::isInFolderOfRuns() const {
    return getResultPath() == FPathManager::instance()->getResultPath(getComputation(), getVariant());
}

std::shared_ptr<const FRunRecord> FComputationResults::getRun() const {
    const FExpr<FExternComputation> computation = getComputation();
    const bool isStored = !mRun && computation && FResults::getResultPath().isEmpty() && !getVariant().isDetached();
    return isStored ? computation->getStoredRun(getVariant()) : mRun;
}

QStringList FComputationResults::getSetUpChanges() const {
    const FExpr<FExternComputation> computation = getComputation();
    const std::shared_ptr<const FRunRecord> run = getRun();
    if (!computation || !run || run->setUp.isEmpty() || !FDesign::isSame(getVariant(), computation->getDesign())) {
        return {};
    }
    const QMap<QString, QString> now = computation->describeSetUp();
    QStringList names = run->setUp.keys();
    for (auto row = now.begin(); row != now.end(); ++row) {
        if (!run->setUp.contains(row.key())) {
            names.append(row.key());
        }
    }
    QStringList changes;
    for (const QString& name : qAsConst(names)) {
        if (run->setUp.contains(name) != now.contains(name) || run->setUp.value(name) != now.value(name)) {
            changes.append(changeText(name, run->setUp, now));
        }
    }
    return changes;
}

QString FComputationResults::getStateText() const {
    const std::shared_ptr<const FRunRecord> run = getRun();
    const QString state = (run ? *run : FRunRecord()).stateName();
    const QStringList changes = getSetUpChanges();
    return changes.isEmpty()
               ? state
               : QStringLiteral("%1, of an earlier set-up (%2)").arg(state, changes.join(QStringLiteral("; ")));
}

QString FComputationResults::getFaultOfFiles() const {
    const std::shared_ptr<const FRunRecord> run = getRun();
    if (!run) {
        return {};
    }
    if (!run->isSuccess()) {
        return run->outcomeName();
    }
    return getSetUpChanges().isEmpty() ? QString() : getStateText();
}

const FComputationResults* FComputationResults::ofFile(const QString& path) {
    for (const FManaged* object : FObjectManager::instance()->getManaged(FComputationResults::null())) {
        const auto* results = dynamic_cast<const FComputationResults*>(object);
        const QString folder = results->getResultPath();
        if (!folder.isEmpty() && path.startsWith(folder) && results->getComputation()) {
            return results;
        }
    }
    return nullptr;
}

bool FComputationResults::prepareResults() const {
    const std::shared_ptr<const FRunRecord> run = getRun();
    return !(run && !run->isOver()) && !getResultPath().isEmpty();
}

void FComputationResults::followFiles(const QString& from, const QString& to) {
    const FHistoryBlocker blocker;
    for (FManaged* object : FObjectManager::instance()->getManaged(FComputationResults::null())) {
        auto* results = dynamic_cast<FComputationResults*>(object);
        const QString path = results->getResultPath();
        if (path == from) {
            results->setResultPath(to);
        } else if (path == to && results->mRun && results->getBlock()->handles == 0) {
            FManaged::destroy(results);
        } else if (path == to) {
            results->detachFromFiles();
        }
    }
}
