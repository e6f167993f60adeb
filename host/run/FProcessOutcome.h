#pragma once

#include "host/core/FExport.h"

#include <QDateTime>
#include <QString>

/** How an external program ended. */
struct MERIX_EXPORT FProcessOutcome {
    /** What the program can be blamed for, or what ended it. */
    enum class Cause {
        None,               //!< it ended by itself with exit code 0
        ProgramNotStarted,  //!< also: its folder or one of its files can't be used, the supervisor is missing
        TimeLimit,
        Signal,
        ExitCode,   //!< not 0
        Cancelled,  //!< by FProcess::cancel(), or by a signal to its supervisor
    };

    bool isSuccess() const { return cause == Cause::None; }

    Cause cause = Cause::None;
    int exitCode = -1;     //!< -1 if there is none; also after a time limit or cancelling it tells how it ended
    int signal = 0;        //!< 0 if no signal ended it
    qint64 processId = 0;  //!< 0 if it was not started
    QDateTime start;       //!< of the program; invalid if it was not started
    QDateTime end;         //!< of the program itself; what it left behind may have ended later
    QString program;       //!< path as started; as given if it was not found
    QString message;       //!< what happened, where, what to do; empty after a success that left nothing behind
};
