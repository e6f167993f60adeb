#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"
#include "host/run/FComputationResults.h"
#include "host/run/FProgramSettings.h"

#include <QObject>
#include <QStringList>

#include <memory>

class FRun;

/**
 * A computation by an external program: the program's settings, and its runs.
 *
 * The steps of a run, in this order: what an earlier run left moves aside; input files are copied, exported and
 * written; `computationStarted`; the program; `computationFinished`, once on every way out after the start; output
 * handles. Each run has results of its own, also one that fails before its program starts. What goes into the files is
 * the business of derived classes; for the time of their steps FPathManager knows the run's folder.
 */
class MERIX_EXPORT FExternComputation : public FClass<FExternComputation, QObject, FManaged> {
    Q_OBJECT

 public:
    static FClassData mClass;

    explicit FExternComputation(const QString& name = QString());
    ~FExternComputation() override;

    // ---- settings of the program; each is set through its attribute ----
    /** A bare name is searched in PATH; a path with a slash is relative to the current folder of this process. */
    const QString& getExecutable() const { return mProgram.executable; }
    const QStringList& getArguments() const { return mProgram.arguments; }
    /** Seconds from the start of the program; 0 is no limit. A number below 0 is refused with a message. */
    double getTimeLimit() const { return mProgram.timeLimit; }
    /** Texts "NAME=value", added to the environment or replacing what is there. */
    const QStringList& getEnvironment() const { return mProgram.environment; }
    /** A file in the folder of the run; empty for none. */
    const QString& getStandardInput() const { return mProgram.standardInput; }
    /** Whether what the program prints goes to "stdout.txt" and "stderr.txt" in the folder of the run. */
    bool getConsoleFiles() const { return mProgram.consoleFiles; }

    // ---- runs ----
    /** False while a run goes on. */
    bool canRun() const { return !mAttempt; }
    /** What keeps the program from being started, for the user; empty if nothing does. */
    virtual QString checkSetup() const { return mProgram.fault(); }
    /**
     * Runs the program. Refused, with a message, while a run goes on.
     * @param wait  true: returns, after a local event loop, with whether the run succeeded. False: returns at once,
     * with whether the program is being started.
     */
    bool run(bool wait = true);
    /** Starts a run from a window, which doesn't wait for it. */
    void guiRun() { run(false); }
    /** Asks to end the run; false if there is none. */
    bool cancel();
    void cancelExternalProcess() { cancel(); }
    bool wasAborted() const;
    /** In words, see FRunRecord. */
    QString getState() const;
    /** Of the last run; -1 if there is none. */
    int getExitCode() const;
    /** Folder of the run in progress, else of the last one, else of the next; with a slash at its end. */
    QString getWorkingPath() const;

    // ---- results ----
    /** Prototype of the results; each run makes its own from it. */
    virtual const FObject* getResultType() const;
    /** Results of the last run, or of the one in progress. Empty before the first. */
    virtual FExpr<FComputationResults> getResults() const { return mResults; }
    const FExpr<FComputationResults>& getCurrentResults() const { return mResults; }
    bool canRereadResults() const;
    /**
     * Has the present files read again, with the present set-up; runs nothing. False, with a message, if nothing says
     * what to read, or if a file isn't there; what is there is read all the same.
     */
    bool rereadResults();
    virtual bool isGeneric() const { return false; }
    /** Name of the result file that an entry of that path holds; empty if there is none. */
    virtual QString getResultFile(const QString& entry) const {
        Q_UNUSED(entry)
        return {};
    }

 signals:
    /** The state of the run is another one: writing, running, over; also when the program couldn't be started. */
    void runChanged();

 protected:
    void init(const FExternComputation* other);
    void leaveModel() override;

    // ---- steps of a run, for derived classes ----
    /** Before anything is written: makes room in the folder. Returns what went wrong, for the user. Idle without a run.
     */
    virtual QString prepareRun() const;
    virtual bool copyInputFiles(const QString& folder) const;
    virtual bool doExports() const { return true; }
    /** Writes the input files. */
    virtual bool writeOutputFile() const { return true; }
    virtual void computationStarted() const {}
    virtual void computationFinished() const {}
    /** After the program: notes what it left. Idle without a run. */
    virtual void finalizeRun() const;
    /** Gives the results what they are read with. */
    virtual void applyOutputHandles(FComputationResults* results) const { Q_UNUSED(results) }
    /** The same when results are read again without a run. */
    virtual void processReread(FComputationResults* results) { results->setOutOfDate(true); }
    /** Files in the folder, relative to it, that results are read from. */
    virtual QStringList getReadFiles() const { return {}; }

 private:
    struct Attempt;

    static void declareCommands(FCmdTable& table);
    template <auto Member>
    static auto& inProgram(FExternComputation& computation);
    void stateChanged();
    void makeResults();
    void startRun();
    QString writeInput() const;
    void runExternalProcess();
    void finishRun();
    void report() const;
    QString rereadProblem() const;

    FProgramSettings mProgram;
    std::shared_ptr<Attempt> mAttempt;  // null when no run goes on
    std::shared_ptr<const FRunRecord> mRecord;
    FExpr<FComputationResults> mResults;
};
