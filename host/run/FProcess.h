#pragma once

#include "host/core/FExport.h"
#include "host/run/FProcessOutcome.h"
#include "host/run/FProcessSetup.h"

#include <QObject>
#include <QProcess>

/**
 * One run of an external program, asynchronous on the event loop of its thread.
 *
 * The program is started by its path and arguments, without a shell, under a supervisor process that ends it and all
 * that it started (whatever their group or session): at the time limit, by cancel(), when the program itself has ended,
 * and when this process is gone, however it died. They are asked first (SIGTERM) and killed after the grace. The
 * streams go straight to their files.
 *
 * The supervisor is the file named by the environment variable MERIX_SUPERVISOR, else "merix-supervisor" in the folder
 * of the running application.
 */
class MERIX_EXPORT FProcess : public QObject {
    Q_OBJECT

 public:
    explicit FProcess(const FProcessSetup& setup, QObject* parent = nullptr);
    /**
     * Ends a program that still runs, and waits for its end: up to the grace and some seconds for one that ignores the
     * request. To avoid the waiting, cancel and delete after finished().
     */
    ~FProcess() override;

    /**
     * Starts the program; does nothing after the first time. Each start leads to exactly one finished(), never before
     * control is back in the event loop, also if the program can't be started.
     */
    void start();
    /** Asks to end the program; finished() follows. Does nothing if it does not run. */
    void cancel();

    /** True from start() to finished(). */
    bool isRunning() const { return mState == State::Running; }
    /** As given, with an absolute working folder. */
    const FProcessSetup& setup() const { return mSetup; }
    /** Start and process from started() on, all of it from finished() on. */
    const FProcessOutcome& outcome() const { return mOutcome; }

 signals:
    /** The program runs. */
    void started();
    /** The program and all that it started are gone, or it could not be started. */
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
