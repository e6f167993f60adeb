#pragma once

#include "host/core/FExpr.h"
#include "host/run/FInterruptLine.h"
#include "host/run/FRun.h"
#include "host/run/FRunFolder.h"
#include "host/run/FRunStore.h"

#include <optional>

class FComputationResults;
class FExternComputation;
class FResultsGeneric;

/**
 * A run in progress: executes the steps of its computation in order, in the folder of the run. It keeps the computation
 * alive, which may leave the model meanwhile.
 */
class FRunAttempt : public QObject {
 public:
    /**
     * @param setup      how the program is started; its working folder is the folder of the run
     * @param earlier    folder for the files of the run before, without a slash at its end
     * @param readFiles  files in the folder that results are read from: the program has to write them
     * @param further    other files in the folder that must not be those of an earlier run
     */
    FRunAttempt(FExternComputation* computation, const FProcessSetup& setup, const QString& earlier,
                const QStringList& readFiles, const QStringList& further);

    std::shared_ptr<const FRunRecord> record() const { return mRun.sharedRecord(); }

    /** Starts the run, and waits for its end if requested. True if the run succeeded, or else was started. */
    bool execute(bool wait);
    /** Ends the run before anything is touched. */
    void skip(FRunRecord::Cause cause, const QString& reason);
    void cancel() { mRun.cancel(); }

    // ---- parts of the computation's steps ----
    /** Moves the files of an earlier run aside. Returns what went wrong, for the user. */
    QString makeRoom();
    /** Starts the program; false if the run was cancelled before. Ends the run if the set-up has a fault. */
    bool startProgram();
    /** Notes which files the program has left. */
    void noteLeft() const { mFolder.noteLeft(); }

 private:
    void start();
    QString findRefusal();
    QString writeInput(FComputationResults* results);
    void finish();
    /** Returns what was read for the check; null if no rule needs numbers. */
    const FResultsGeneric* checkNumbers(const FComputationResults* results);
    /** Keeps the record, which is complete, for a later process. */
    void store() const;
    void report() const;

    FExprBase mKeep;  // an FExpr of a computation that has left the model is null
    FExternComputation* mComputation;
    FRun mRun;
    QString mRefusal;  // why nothing in the folder may be touched; empty if nothing prevents the run
    QString mEarlier;
    QStringList mReadFiles;
    QStringList mFurtherFiles;
    FSuccessRules mRules;
    std::optional<FInterruptLine> mInterruptLine;  // empty after the end: the object itself may live a little longer
    FRunFolder mFolder;
    FRunStore mStore;
    bool mHasRoom = false;    // the files of the run before were moved aside
    bool mIsStarted = false;  // computationStarted was called
};
