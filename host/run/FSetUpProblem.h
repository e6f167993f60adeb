#pragma once

#include "host/core/FExport.h"
#include "host/core/FLogMsg.h"

#include <QString>

/** A problem of a computation's set-up that is known before a run. */
struct MERIX_EXPORT FSetUpProblem {
    enum class Severity {
        Note,
        Warning,  //!< the run may give other numbers than expected
        Error,    //!< the run fails, or its input or its numbers are wrong
    };

    Severity severity = Severity::Warning;
    QString object;                //!< name of the object concerned
    QString place;                 //!< in a template, as name:line:column; empty if it concerns the whole object
    QString text;                  //!< a sentence without its final full stop
    QString remedy;                //!< the same; empty if there is none to give
    bool isReportedByRun = false;  //!< the run fails for this reason, and reports it itself
    QString part{};                //!< name of the part of the object that it concerns, such as a value to read
    bool isOfValue = false;        //!< it depends on the present value of an entry
    QString wrong = {};            //!< the name in a tag that should be another one; empty if that isn't the problem
    QString right = {};            //!< that other name

    /** "error", "warning" or "note". */
    QString severityName() const;
    FLogMsg toMessage() const;
    /** Equal for problems of which a user needs to see only one: the values of an entry make no difference. */
    QString key() const;
};
