#pragma once

#include "host/core/FExport.h"

#include <QList>
#include <QString>
#include <QStringList>

/** How an external program is started. Relative file names start at the working folder. */
struct MERIX_EXPORT FProcessSetup {
    /** A bare name is searched in PATH; a relative path with a slash starts at the working folder. */
    QString program;
    QStringList arguments;  //!< passed on unchanged, without a shell
    QString workingFolder;  //!< empty for the current one
    /** Texts "NAME=value", which extend or replace the environment of this process; PATH affects the search, too. */
    QStringList environment;
    QString standardInputFile;   //!< empty: the program reads an empty input
    QString standardOutputFile;  //!< created or emptied at the start; empty: output is discarded
    QString standardErrorFile;   //!< likewise; may be the file of the standard output
    QList<int> exitCodes{0};     //!< those of a success
    /** Locked until the program and its descendants have ended (see FRunLock); its folder must exist. Empty: none. */
    QString lockFile;
    double timeLimit = 0;  //!< seconds from the start of the program; 0 is no limit
    double grace = 5;      //!< seconds between SIGTERM and SIGKILL
};
