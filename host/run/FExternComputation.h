#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"
#include "host/run/FCurrentResults.h"
#include "host/run/FInputChanges.h"
#include "host/run/FProgramSettings.h"
#include "host/run/FSetUpReport.h"
#include "host/run/FSuccessRules.h"

#include <QMap>
#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

class FChainRun;
class FRunAttempt;

/**
 * A computation by an external program: the program's settings, and its runs.
 *
 * A run executes these steps in this order: it moves the files of an earlier run aside; it copies input files, exports
 * and writes; `computationStarted`; the program; `computationFinished`, exactly once if `computationStarted` was
 * called; output handles. Each run has its own results, even if it fails before its program starts. Derived classes
 * decide what the input files contain; during the steps FPathManager knows the folder of the run.
 */
class MERIX_EXPORT FExternComputation : public FClass<FExternComputation, QObject, FManaged> {
    Q_OBJECT

 public:
    static FClassData mClass;

    explicit FExternComputation(const QString& name = QString());
    ~FExternComputation() override;

    QList<FManaged*> getParts() const override;

    // ---- design ----
    /** The design whose folder the runs have; empty for the folder "baseline", also if the design is gone. */
    const FExpr<FDesign>& getDesign() const;
    /**
     * The next runs use the folder of that design, and their results belong to it and are saved with it. State and
     * results are then those of the last run of that design. Refused, with a message, while a run is in progress.
     */
    void setDesign(const FExpr<FDesign>& design);

    /** How the program is started. Attributes of the command table set it. */
    const FProgramSettings& getProgram() const { return mProgram; }

    /** What counts as success. Attributes of the command table set it. */
    const FSuccessRules& getSuccessRules() const { return mRules; }

    // ---- runs ----
    /** False while a run is in progress, or another one that it waits for. */
    bool canRun() const { return !mAttempt && !mChain; }
    /** Why the program can't be started, for the user; empty if nothing prevents it. */
    virtual QString checkSetup() const { return mProgram.fault().toSentences(); }
    /**
     * Runs the program. Refused, with a message, while a run is in progress.
     * @param wait  true: returns, after a local event loop, whether the run succeeded. False: returns at once whether
     *              the program is being started.
     */
    bool run(bool wait = true);
    /**
     * The same, but first runs the computations whose results this one uses, at any distance, as far as they have no
     * successful run with the present set-up. If one of them doesn't succeed, this one isn't run.
     */
    bool runWithSuppliers(bool wait = true);
    /** Starts a run from a window, which doesn't wait for it: with suppliers unless a setting says otherwise. */
    void guiRun();
    /**
     * Starts a run as soon as control is back in the event loop, and doesn't wait for it. Calls until then count as
     * one. Nothing happens if the computation can't run by then, or is no longer in the model.
     */
    void triggerRunByTimer();
    /** Requests the end of the run, or of the one that it waits for; false if there is none. */
    bool cancel();
    void cancelExternalProcess() { cancel(); }
    /**
     * Writes all files that the program reads into an existing folder, and starts nothing. False, with a message, if
     * one can't be written.
     * @param folder  absolute, with a slash at its end
     */
    bool writeInput(const QString& folder) const;
    /** Whether the last run was cancelled. */
    bool wasAborted() const { return getLastRun().cause == FRunRecord::Cause::Cancelled; }
    /**
     * The run in progress, else the last one of the present design, also of an earlier session; in state `Ready` before
     * the first. Valid until the next call, or the next run.
     */
    const FRunRecord& getLastRun() const;
    /** The same to keep: it is updated during the run, and is that of the same run later. Null before the first run. */
    std::shared_ptr<const FRunRecord> getLastRecord() const;
    /**
     * What a run of a chain in progress intends with the computation, in state `Waiting` or `UpToDate`. Null otherwise,
     * so also from the start of its own run on. FChanges reports the computation as changed.
     */
    const std::shared_ptr<const FRunRecord>& getPlannedRun() const { return mPlanned; }
    /** The last run in a design's folder, from its stored record; null if there is none. */
    std::shared_ptr<const FRunRecord> getStoredRun(const FExpr<FDesign>& design) const;
    /**
     * What the input of a run is made of, by name: settings of the program, values of entries, contents of templates.
     * A name with a colon at its end is that of a long content, whose text is a digest to compare.
     */
    virtual QMap<QString, QString> describeSetUp() const;
    /** The files of a run have moved; both with a slash at the end. */
    void runMoved(const QString& from, const QString& to);
    struct ReadingPart {
        const FObject* object;
        QString name;  //!< for the user
    };
    /** What the results are read with beside the set-up, such as the rows of a mean. Nothing goes out of date with it.
     */
    virtual std::vector<ReadingPart> getReadingParts() const { return {}; }
    /** The other process that has the project open, and so its runs, for a message; empty if there is none. */
    static QString getHolderOfRuns();
    /** Folder of the run in progress, else of the last one, else of the next; with a slash at its end. */
    QString getWorkingPath() const;

    // ---- results ----
    /** Prototype of the results; each run makes its own from it. */
    virtual const FObject* getResultType() const;
    /** Results of the last run, or of the one in progress. Empty before the first. */
    virtual FExpr<FComputationResults> getResults() const { return getCurrentResults(); }
    const FExpr<FComputationResults>& getCurrentResults() const;
    /** Why getResults() gave nothing, for a message. */
    static QString explainNoResults(const FExternComputation& computation);
    /** Reads what the current results haven't read yet; false if there are none or nothing can be read. */
    bool prepareResults() const;
    /** Whether there are results, or files to read them from, and no run is in progress. */
    bool canRereadResults() const;
    /**
     * The next access to the results reads the files again, with the present set-up. Runs nothing, and doesn't check
     * the files. False if `canRereadResults` is.
     */
    bool refetchResults();
    /**
     * As `refetchResults`, with a message if that isn't possible. Also returns false, with a message, if no file is
     * named, or if a file is missing, empty or not an ordinary one; the other files are read all the same. While
     * another process may write the files, nothing is read.
     */
    bool rereadResults();
    /**
     * New results that are read from the files in a folder, with the present set-up. The folder and the results of
     * runs stay as they are.
     * @param folder  absolute, with a slash at its end
     */
    FExpr<FComputationResults> readFolder(const QString& folder);
    virtual bool isGeneric() const { return false; }
    /** Name of the result file that an entry of that path holds; empty if there is none. */
    virtual QString getResultFile(const QString& entry) const {
        Q_UNUSED(entry)
        return {};
    }

 signals:
    /**
     * The state of the run has changed: writing, running, over; also if the program couldn't be started. FChanges
     * then reports the computation and the results as changed.
     */
    void runChanged();

 protected:
    void init(const FExternComputation* other);
    void leaveModel() override;

    // ---- steps of a run, for derived classes ----
    /** Before anything is written: makes room in the folder. Returns what went wrong, for the user. Does nothing
     *  without a run. */
    virtual QString prepareRun() const;
    virtual bool copyInputFiles(const QString& folder) const;
    virtual bool doExports() const { return true; }
    /** Writes the input files. */
    virtual bool writeOutputFile() const { return true; }
    virtual void computationStarted() const {}
    /** Starts the program, which then runs on its own. Does nothing without a run. */
    void runExternalProcess(FComputationResults* results);
    virtual void computationFinished() const {}
    /** After the program: notes which files it left. Does nothing without a run. */
    virtual void finalizeRun() const;
    /** Gives the results the templates that they are read with. */
    virtual void applyOutputHandles(FComputationResults* results) const { Q_UNUSED(results) }
    /** The same when results are read again without a run. */
    virtual void processReread(FComputationResults* results) { results->setOutOfDate(true); }
    /** Files in the folder, relative to it, that results are read from. */
    virtual QStringList getReadFiles() const { return {}; }
    /** Why the files of a run can't have their names, as a sentence; empty if they can. */
    virtual QString getFileNameFault() const;
    /** The values that were written for the run, by the names of their entries. */
    virtual QMap<QString, QString> getWrittenValues() const { return {}; }
    /** Other files that a run may write, relative to the folder. Like the files above, those of an earlier run move
     *  aside. */
    virtual QStringList getFurtherFiles() const { return {}; }
    /** Why `writeOutputFile` has returned false, without a full stop; empty if a message was logged. */
    virtual QString getInputFault() const { return {}; }

 private:
    friend class FChainRun;
    friend class FRunAttempt;

    static std::vector<std::unique_ptr<FStateField>> fields();
    bool isRunOfDesign() const { return mAttempt || FDesign::isSame(mRunDesign, getDesign()); }
    QString rereadRefusal() const;
    /** Whether a run can be started; if not, a message says why. */
    bool mayRun() const;
    std::shared_ptr<FRunAttempt> makeAttempt();
    /** Whether the last run has succeeded with the present set-up, and its files are there. */
    bool isUpToDate() const;
    void setPlannedRun(const std::shared_ptr<const FRunRecord>& run);
    /** A run that ends before it begins. */
    void skipRun(FRunRecord::Cause cause, const QString& reason);
    void takeUnknownResults();

    static void declareCommands(FCmdTable& table);
    template <auto Member>
    static auto& inProgram(FExternComputation& computation);
    template <auto Member>
    static auto& inRules(FExternComputation& computation);
    static void declareRules(FCmdTable& table);

    // For the run in progress.
    FComputationResults* takeRun(const std::shared_ptr<const FRunRecord>& run);
    std::shared_ptr<FRunAttempt> endRun();
    void stateChanged(FComputationResults* results);
    /** The entries whose values differ from those of the run before, for the user. */
    QString compareInput();

    FProgramSettings mProgram;
    FSuccessRules mRules;
    FInputChanges mInput;
    std::shared_ptr<FRunAttempt> mAttempt;  // null if no run is in progress
    std::shared_ptr<FChainRun> mChain;      // null unless a run waits for others
    std::shared_ptr<const FRunRecord> mPlanned;
    FExpr<FDesign> mDesign;
    std::shared_ptr<const FRunRecord> mRecord;  // of the last run of this session
    FExpr<FDesign> mRunDesign;                  // its design
    mutable std::shared_ptr<const FRunRecord> mStoredRecord;
    mutable FCurrentResults mResults;
    FSetUpReport mSetUpReport;
    bool mIsTriggered = false;
};
