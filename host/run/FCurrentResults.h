#pragma once

#include "host/run/FComputationResults.h"

#include <memory>

class FExternComputation;
struct FSuccessRules;

/** The results of a computation's last run, or of the run in progress; none before the first one. */
class FCurrentResults {
 public:
    const FExpr<FComputationResults>& get() const { return mResults; }
    bool isOf(const FExpr<FDesign>& design) const { return FDesign::isSame(mDesign, design); }
    /** Takes the results that the model has of the computation's design, such as those of a saved project, or none. */
    void take(const FExternComputation& computation);
    /**
     * Makes new results in the model, of the class that the computation's runs have.
     * @param run  the run that they belong to; null to read the files of an earlier session
     */
    void make(const FExternComputation& computation, const std::shared_ptr<const FRunRecord>& run);
    /** Why these files, apart from the optional ones, can't all be read again, for the user; empty if they can. */
    QString rereadProblem(const QStringList& files, const FSuccessRules& rules) const;

 private:
    FExpr<FComputationResults> mResults;
    FExpr<FDesign> mDesign;
};
