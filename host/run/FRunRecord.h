#pragma once

#include "host/core/FExport.h"
#include "host/run/FProcessOutcome.h"

/** One attempt to run the program of a computation: its state, and how the program ended. */
struct MERIX_EXPORT FRunRecord : FProcessOutcome {
    enum class State { Ready, Writing, Running, Finished, Failed, Cancelled, TimedOut };

    bool isOver() const { return state >= State::Finished; }
    bool isSuccess() const { return state == State::Finished; }
    /** The state in words, as scripts see it: "ready", "writing", "running", "finished", "failed", "cancelled",
     *  "timed out". */
    QString stateName() const;
    /** For the user: what happened, the last lines of the error output, the folder. Empty unless the run failed. */
    QString failureText() const;

    State state = State::Ready;
    QString computation;    //!< name of the computation
    QString folder;         //!< absolute, with a slash at its end
    QString lastLines;      //!< the last lines that the program printed, if it failed
    QString lastLinesFile;  //!< the file that contains them
};
