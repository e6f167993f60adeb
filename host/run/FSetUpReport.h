#pragma once

#include "host/core/FExport.h"
#include "host/run/FSetUpCheck.h"

#include <QSet>

/** Logs the problems of a computation's set-up before its runs, each of them once. */
class MERIX_EXPORT FSetUpReport {
 public:
    /** Logs the problems that are new since the last call, except those that the run reports itself. */
    void log(const FSetUpCheck::Problems& problems);

 private:
    QSet<QString> mKnown;     //!< keys of the last call, and those below
    QSet<QString> mOfValues;  //!< keys of all problems of values so far
};
