#pragma once

#include "host/core/FExport.h"

#include <QString>
#include <QStringList>

/** The files in the folder of a run that results are read from. Texts are for the user; empty means all is well. */
class MERIX_EXPORT FResultFiles {
 public:
    /** @param folder  with a slash at its end */
    FResultFiles(const QString& folder, const QStringList& names);

    /** Why a file of that name can't be read in any folder: no name, or one that leads out of the folder. */
    static QString faultOfName(const QString& name);
    /** Why a file, whose name has no fault, is none of the folder's: a link. Empty if it is, or isn't there. */
    static QString faultOfLinks(const QString& folder, const QString& name);
    /** Why a template can't have that file name; also refuses an absolute path, whose file the program would miss. */
    static QString faultOfTemplate(const QString& name);
    /** The same for all names, as a sentence. */
    QString faultOfNames() const;
    /** The missing files, quoted and separated by commas. */
    QString missing() const;
    /** Files that exist but can't be read, each with its reason, such as "'out' (it is a folder)". */
    QString unreadable() const;
    /** Files that are none of the folder's, each with its reason. */
    QString outside() const;
    /** Empty files, quoted and separated by commas. */
    QString empty() const;

 private:
    template <class Reason>
    QString listed(Reason reasonOf) const;

    QString mFolder;
    QStringList mNames;
};
