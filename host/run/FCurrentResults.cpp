#include "host/run/FCurrentResults.h"

#include "host/core/FHistory.h"
#include "host/run/FExternComputation.h"
#include "host/run/FRun.h"

void FCurrentResults::make(const FExternComputation& computation, const std::shared_ptr<const FRunRecord>& run) {
    const FHistoryBlocker blocker;
    const auto* type = dynamic_cast<const FComputationResults*>(computation.getResultType());
    mResults = FExpr<FComputationResults>(type->createResults({}, FExpr<FExternComputation>(&computation)));
    mResults->setResultPath(computation.getWorkingPath());
    mResults->setRun(run);
}

QString FCurrentResults::rereadProblem(const QStringList& files, const FSuccessRules& rules) const {
    if (files.isEmpty()) {
        return QStringLiteral("no file to read is named. Add a result template to the definition.");
    }
    const QString folder = mResults->getResultPath();
    if (folder.isEmpty()) {
        return QStringLiteral("the last run couldn't start. Run it again.");
    }
    const QString missing = FRun::missingFiles(folder, rules.withoutOptional(files));
    return missing.isEmpty()
               ? QString()
               : QStringLiteral("not in '%1': %2. Run it, or correct the file names of the result templates.")
                     .arg(folder, missing);
}
