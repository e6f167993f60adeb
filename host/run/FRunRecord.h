#pragma once

#include "host/core/FExport.h"

#include <QDateTime>
#include <QString>

/** What is known of one run: one attempt to run the program of a computation. */
struct MERIX_EXPORT FRunRecord {
    enum class State { Ready, Writing, Running, Finished, Failed, Cancelled, TimedOut };
    /** What kept the run from success. When several things did, the first one of this list counts. */
    enum class Cause {
        None,
        InputNotWritten,    //!< also: what an earlier run left can't be moved aside
        ProgramNotStarted,  //!< not found, not executable, a file or setting of its start is wrong
        TimeLimit,
        Signal,
        ExitCode,     //!< not 0
        FileMissing,  //!< the program ended well, but a file that results are read from isn't there
        Cancelled,
    };

    bool isOver() const { return state >= State::Finished; }
    bool isSuccess() const { return state == State::Finished; }
    /** The state in words, as scripts see it: "ready", "writing", "running", "finished", "failed", "cancelled",
     *  "timed out". */
    QString stateName() const;
    /** For the user: what happened, the last lines of the error output, the folder. Empty unless it went wrong. */
    QString failureText() const;

    State state = State::Ready;
    Cause cause = Cause::None;
    QString computation;  //!< name of the computation
    QString folder;       //!< absolute, with a slash at its end
    QString program;      //!< path as started; as given if it wasn't
    QDateTime start;      //!< of the program; invalid if it wasn't started
    QDateTime end;
    int exitCode = -1;      //!< -1 if there is none
    int signal = 0;         //!< 0 if no signal ended the program
    QString message;        //!< what happened, where, what to do
    QString lastLines;      //!< the last lines of what the program printed, if it went wrong
    QString lastLinesFile;  //!< the file that they stand in
};
