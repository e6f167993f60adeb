#pragma once

#include "host/core/FExport.h"
#include "host/run/FProcessOutcome.h"

#include <QMap>
#include <QStringList>

/**
 * One attempt to run the program of a computation: its state, and how the program ended. In a run of a chain there are
 * also attempts that are to come or that aren't needed; they have neither a start nor a folder.
 */
struct MERIX_EXPORT FRunRecord : FProcessOutcome {
    enum class State { Ready, Waiting, Writing, Running, Finished, Failed, Cancelled, TimedOut, NotRun, UpToDate };

    bool isOver() const { return state >= State::Finished; }
    bool isSuccess() const { return state == State::Finished; }
    /** Whether nothing in the folder was touched: it is still to come, wasn't needed, or ended before it began. */
    bool isSkipped() const;
    /** The state in words, as scripts see it: "ready", "waiting", "writing", "running", "finished", "failed",
     *  "cancelled", "timed out", "not run: upstream failed", "up to date". */
    QString stateName() const;
    /** The same, but "interrupted" for a run that ended with its process. */
    QString outcomeName() const;
    /**
     * Adds a cause of failure. The first one is that of the run; further ones are listed below it.
     * @param advice  what to do; shown below the output of the program
     */
    void addCause(Cause added, const QString& what, const QString& advice = QString());
    /** For the user: what happened, the output of the program, what to do, the folder. Empty unless the run failed. */
    QString failureText() const;

    State state = State::Ready;
    QString computation;        //!< name of the computation
    QString folder;             //!< absolute, with a slash at its end
    QString changedInput;       //!< the entries that differ from the run before, with their values; may be empty
    QStringList furtherCauses;  //!< sentences
    QString causeLines;         //!< lines of the program's output that best show why it failed
    QString remedy;             //!< of the cause, apart from what its message says
    /** What the input was made of, by name (see FExternComputation::describeSetUp); empty if it wasn't written. */
    QMap<QString, QString> setUp;
};
