#pragma once

#include "host/core/FExport.h"
#include "host/run/FProcessSetup.h"
#include "host/run/FProgramFault.h"
#include "host/run/FProgramSearch.h"

#include <QMap>

/** How a computation starts its program. */
struct MERIX_EXPORT FProgramSettings {
    /** A bare name is searched in PATH; a path with a slash is relative to the current folder of this process. */
    QString executable;
    QStringList arguments;
    double timeLimit = 0;      //!< seconds from the start of the program, from 0; 0 is no limit
    QStringList environment;   //!< texts "NAME=value", which extend or replace the environment
    QString standardInput;     //!< a file in the folder of the run; empty for none
    bool consoleFiles = true;  //!< whether the output of the program goes to `outputFile` and `errorFile`

    /** Files in the folder of the run for the output and the error output of the program. */
    static const QString& outputFile();
    static const QString& errorFile();

    /** The search for the program, in the PATH of the settings or of this process. */
    FProgramSearch search() const;
    /** Size and time of the last change of the program's file, as a text to compare; empty if it isn't found. */
    QString fileVersion() const;
    /**
     * The same of the files that are named by an argument, such as a script, by argument. Those in the folder of the
     * run aren't there: it is the run that writes them.
     */
    QMap<QString, QString> argumentVersions(const QString& folder) const;
    /** Why the program can't be started; empty if nothing prevents it. */
    FProgramFault fault() const;
    /** The same for the start in a folder, whose path has no slash at its end. */
    FProcessSetup setupIn(const QString& folder) const;

 private:
    FProgramFault faultOfNul() const;
};
