#pragma once

#include "host/core/FExport.h"
#include "host/run/FResults.h"
#include "host/run/FRunRecord.h"

#include <memory>

class FExternComputation;

/** Results of a computation. They belong to one run, and know how it ended. */
class MERIX_EXPORT FComputationResults : public FClass<FComputationResults, FResults> {
 public:
    static FClassData mClass;

    FComputationResults() = default;
    FComputationResults(const QString& name, const FExpr<FDesign>& variant,
                        const FExpr<FExternComputation>& computation);
    /** For results whose computation is known by its number only: those of a saved project. */
    FComputationResults(const QString& name, const FExpr<FDesign>& variant, int computationId)
        : FClass(name, variant), mComputationId(computationId) {}

    /** Makes results of this class, in the model; called on the prototype. Null for a class that can't be made so. */
    virtual FComputationResults* createResults(const FExpr<FDesign>& variant,
                                               const FExpr<FExternComputation>& computation) const;

    /** Empty if the computation is gone. */
    FExpr<FExternComputation> getComputation() const;
    /** Number of the computation; 0 if it is unknown. */
    int getComputationId() const { return mComputationId; }
    /** As given; else the computation's folder, for results that come from no run of this session. */
    QString getResultPath() const override;

    /** Results of a run aren't saved: an expression finds those of the last run through their computation. */
    QString getKeptText(QString& fault) const override;

    /** The run that they belong to; null for those of an earlier session. It goes on while the run does. */
    const std::shared_ptr<const FRunRecord>& getRun() const { return mRun; }
    void setRun(const std::shared_ptr<const FRunRecord>& run) { mRun = run; }

    /** Reads what isn't read yet. False if nothing may be read: the run still goes on, or there is no folder. */
    virtual bool prepareResults() const;
    /** The files are about to be removed: what was read stays, and nothing is read any more. */
    virtual void detachFromFiles() {}

    /**
     * The files in a folder are about to be moved to another one, where all is replaced: results that are read from
     * the one follow. Those of the other one are detached; they are destroyed if a run made them and nobody has a
     * handle on them.
     */
    static void followFiles(const QString& from, const QString& to);

 protected:
    void init(const FComputationResults* other);
    using FResults::init;

 private:
    // Not a handle: the computation holds one on its results.
    int mComputationId = 0;
    std::shared_ptr<const FRunRecord> mRun;
};
