#pragma once

#include <QString>
#include <QStringList>

/** Where a program was searched and what was found. */
struct FProgramSearch {
    /**
     * Searches a bare name in the folders of a PATH (text as in the environment; relative folders in it and empty ones
     * are taken from the working folder), and looks for a name with a slash at that place. The working folder is
     * absolute.
     */
    static FProgramSearch search(const QString& program, const QString& workingFolder, const QString& path);

    bool isFound() const { return !file.isEmpty(); }
    /** For the user: where the program was searched, what was there instead, what to do. Empty if it was found. */
    QString message() const;

    QString program;        //!< as searched
    QString place;          //!< absolute path of a name with a slash; empty for a bare name
    QString file;           //!< absolute path; empty if there is none that can be executed
    QString notExecutable;  //!< the first file or folder of that name that can't be executed; empty if none
    QStringList folders;    //!< searched, in this order; empty for a name with a slash
};
