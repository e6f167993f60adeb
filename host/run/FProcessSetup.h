#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QStringList>

/** What an external program is started with. Relative files lie in the working folder. */
struct MERIX_EXPORT FProcessSetup {
    /** A path, absolute or with a slash and then relative to the working folder; a bare name is searched in PATH. */
    QString program;
    QStringList arguments;  //!< passed on as they are; no shell sees them
    QString workingFolder;  //!< empty for the current one
    /** Texts "NAME=value", added to the environment of this program or replacing what is there. PATH counts too. */
    QStringList environment;
    QString standardInputFile;   //!< empty: the program reads an empty input
    QString standardOutputFile;  //!< made or emptied at the start; empty: thrown away
    QString standardErrorFile;   //!< likewise; may be the file of the standard output
    double timeLimit = 0;        //!< seconds from the start of the program; 0 is none
    double grace = 5;            //!< seconds between asking a program to end and killing it
};
