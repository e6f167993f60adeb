#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

/**
 * A file to put into the folder of a run, in one step (see FSavedFile), with the folders that it needs. Functions
 * return a reason for the user, or an empty text if all went well.
 */
class MERIX_EXPORT FRunFolderFile {
 public:
    /**
     * @param name  relative to the folder. A name that leads out of the folder is refused, also one that does so
     * through a link in the folder. The file replaces a link of its own name.
     */
    FRunFolderFile(const QString& folder, const QString& name);

    /** Copies a file with its permissions. A relative path starts at the folder of the project's file. */
    QString copyFrom(const QString& source) const;
    QString write(const QByteArray& bytes) const;

 private:
    QString prepare() const;
    /** Removes a link of that name: writing through it would change a file elsewhere. */
    QString makeRoom() const;

    QString mFolder;
    QString mName;
    QString mPath;
};
