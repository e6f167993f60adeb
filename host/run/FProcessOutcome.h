#pragma once

#include "host/core/FExport.h"

#include <QDateTime>
#include <QString>

/** How an external program ended. */
struct MERIX_EXPORT FProcessOutcome {
    /** What kept it from success. If there are several causes, the first in this list counts. */
    enum class Cause {
        None,               //!< it ended by itself with an exit code of a success
        InputNotWritten,    //!< of a run: also if files of an earlier run can't be moved aside
        ProgramNotStarted,  //!< not found, not executable, or a file or setting of its start is wrong
        TimeLimit,
        Signal,
        ExitCode,     //!< not among those of a success
        TextRule,     //!< of a run: a rule about a text in a file is broken
        FileMissing,  //!< of a run: the program succeeded, but didn't write a file that results are read from, or not
                      //!< an ordinary one
        NumberRule,   //!< of a run: a rule about the numbers that were read is broken
        Cancelled,    //!< by FProcess::cancel(), or by a signal to the supervisor
        Interrupted,  //!< of a run: merix ended during it, so no end is recorded
        UpstreamFailed,  //!< of a run: it uses results of another one that didn't succeed
    };

    Cause cause = Cause::None;
    int exitCode = -1;     //!< -1 if there is none; may be set after a time limit or cancelling, too
    int signal = 0;        //!< 0 if no signal ended it
    qint64 processId = 0;  //!< 0 if it was not started
    QDateTime start;       //!< of the program; invalid if it was not started
    QDateTime end;         //!< of the program itself; processes that it started may have ended later
    QString program;       //!< path as started; as given if it was not found
    QString message;       //!< what happened, where, what to do; empty after a success that left no processes
};
