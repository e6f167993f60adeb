#pragma once

#include "host/core/FExport.h"
#include "host/run/FResults.h"
#include "host/run/FRunRecord.h"

#include <memory>

class FExternComputation;

/** Results of a computation. They belong to one run, whose record tells how it ended. */
class MERIX_EXPORT FComputationResults : public FClass<FComputationResults, FResults> {
 public:
    static FClassData mClass;

    FComputationResults() = default;
    FComputationResults(const QString& name, const FExpr<FDesign>& variant,
                        const FExpr<FExternComputation>& computation);
    /** For results of a saved project, which know only the number of their computation. */
    FComputationResults(const QString& name, const FExpr<FDesign>& variant, int computationId)
        : FClass(name, variant), mComputationId(computationId) {}

    /** Creates results of this class in the model; called on the prototype. Null for a class that doesn't support it.
     */
    virtual FComputationResults* createResults(const FExpr<FDesign>& variant,
                                               const FExpr<FExternComputation>& computation) const;

    /** Empty if the computation is no longer in the model. */
    FExpr<FExternComputation> getComputation() const;
    /** Number of the computation; 0 if it is unknown. */
    int getComputationId() const { return mComputationId; }
    /** The path that was set; otherwise, for results that come from no run of this session, the computation's folder.
     */
    QString getResultPath() const override;

    /** Results of a run aren't saved: an expression finds those of the last run through their computation. */
    QString getKeptText(QString& fault) const override;

    /**
     * The run that they belong to, which may be in progress; for results of an earlier session the one whose record is
     * stored. Null if there is none.
     */
    std::shared_ptr<const FRunRecord> getRun() const;
    void setRun(const std::shared_ptr<const FRunRecord>& run) { mRun = run; }

    /**
     * In which points the set-up of the computation differs now from that of the run, as sentences without a full stop,
     * such as "length was 2, is 3". Empty if it doesn't, or if it can't be known. Results of a design are compared
     * while the computation has that design.
     */
    QStringList getSetUpChanges() const;
    /** State of the run, as FRunRecord words it, with ", of an earlier set-up" and the changes if there are some. */
    QString getStateText() const;

    /**
     * Why the files aren't those of a complete run with the present set-up: "failed", "interrupted", or as the state's
     * text. Empty if they are, or if no run is known.
     */
    QString getFaultOfFiles() const;
    /** The results in the model whose folder contains a file; null if there are none. */
    static const FComputationResults* ofFile(const QString& path);

    /** Reads what isn't read yet. False if nothing may be read: the run is in progress, or there is no folder. */
    virtual bool prepareResults() const;
    /** The files are about to be removed: reads them now if they weren't, and never again. There is no path then. */
    virtual void detachFromFiles() {}

    /**
     * The files in a folder are about to move to another folder and replace its contents. Results of the first folder
     * get the new path. Results of the other folder are detached from its files, or destroyed if a run created them and
     * there is no handle on them.
     */
    static void followFiles(const QString& from, const QString& to);

 protected:
    /** Whether the files are in the folder that the computation's runs of this design have. */
    bool isInFolderOfRuns() const;
    void init(const FComputationResults* other);
    using FResults::init;

 private:
    // Not a handle: the computation holds one on its results.
    int mComputationId = 0;
    std::shared_ptr<const FRunRecord> mRun;
};
