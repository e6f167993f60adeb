#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

/**
 * A file that is put into the folder of a run in one step (see FSavedFile); missing folders are created. Functions
 * return the reason of a failure, for the user, or an empty text.
 */
class MERIX_EXPORT FRunFolderFile {
 public:
    /**
     * @param name  relative to the folder. A name that leads out of the folder, also through a link in it, is refused.
     *              A link of that name is replaced.
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
