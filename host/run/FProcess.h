#pragma once

#include "host/core/FExport.h"
#include "host/run/FProcessOutcome.h"
#include "host/run/FProcessSetup.h"

#include <QObject>
#include <QProcess>

/**
 * One run of an external program, asynchronous on the event loop of its thread.
 *
 * The program is started by its path and arguments, without a shell, under a supervisor process. The supervisor ends
 * the program and all processes that it started (whatever their group or session): at the time limit, on cancel(), when
 * the program itself has ended, and when this process has ended, even by a crash. It sends SIGTERM first, and SIGKILL
 * after the grace period. The program writes its output directly to the files.
 *
 * The supervisor is the file named by the environment variable MERIX_SUPERVISOR, else "merix-supervisor" in the folder
 * of the running application.
 */
class MERIX_EXPORT FProcess : public QObject {
    Q_OBJECT

 public:
    explicit FProcess(const FProcessSetup& setup, QObject* parent = nullptr);
    /**
     * Ends a program that is still running, and waits for its end: for one that ignores the request, up to the grace
     * period and a few seconds. To avoid waiting, cancel, and delete this object after finished().
     */
    ~FProcess() override;

    /**
     * Starts the program; further calls do nothing. finished() follows exactly once, from the event loop, even if the
     * program can't be started.
     */
    void start();
    /** Requests the end of the program; finished() follows. Does nothing if it isn't running. */
    void cancel();

    /** True from start() to finished(). */
    bool isRunning() const { return mState == State::Running; }
    /** The set-up passed to the constructor, with an absolute working folder. */
    const FProcessSetup& setup() const { return mSetup; }
    /** Start time and process are valid from started() on, everything else from finished() on. */
    const FProcessOutcome& outcome() const { return mOutcome; }

 signals:
    /** The program is running. */
    void started();
    /** The program and all processes that it started have ended, or it could not be started. */
    void finished(const FProcessOutcome& outcome);

 private:
    enum class State { Ready, Running, Finished };

    bool prepareEnvironment();
    bool findProgram();
    bool findSupervisor();
    QStringList supervisorArguments() const;
    void failToStart(const QString& message);
    void readReport();
    void takeEvent(const QStringList& event);
    void takeEnd(const QStringList& event);
    void onSupervisorError(QProcess::ProcessError error);
    void onSupervisorFinished();
    void conclude();

    FProcessSetup mSetup;
    FProcessOutcome mOutcome;
    QProcess mSupervisor;
    State mState = State::Ready;
    bool mIsReported = false;
};
