#pragma once

#include "host/core/FExport.h"
#include "host/run/FProgramFault.h"

#include <QString>
#include <QStringList>

/** The search for a program, and its result. */
struct MERIX_EXPORT FProgramSearch {
    /**
     * Searches a bare name in the folders of a PATH, given as in the environment; relative and empty folders in it
     * start at the working folder. A name with a slash is a path. The working folder is absolute.
     */
    static FProgramSearch search(const QString& program, const QString& workingFolder, const QString& path);

    bool isFound() const { return !file.isEmpty(); }
    /**
     * Where the program was searched, what was found instead, what to do. Empty if it was found.
     * @param withFolders  false leaves out the list of the folders, which an earlier message gave
     */
    FProgramFault fault(bool withFolders = true) const;

    QString program;        //!< the name that was searched
    QString place;          //!< absolute path of a name with a slash; empty for a bare name
    QString file;           //!< absolute path; empty if there is none that can be executed
    QString notExecutable;  //!< the first file or folder of that name that can't be executed; empty if none
    QStringList folders;    //!< searched, in this order; empty for a name with a slash
};
