#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QString>

/**
 * A file that is put into the folder of a run: beside its place first, then in one step, with the folders that it
 * needs. Operations return what went wrong, for the user; empty if nothing did.
 */
class MERIX_EXPORT FRunFolderFile {
 public:
    /**
     * The name is relative to the folder; one that leads out of it, be it through a link in the folder, is refused. A
     * link in the place of the file is replaced.
     */
    FRunFolderFile(const QString& folder, const QString& name);

    /** Copies a file, with its permissions. A relative name is relative to the project's file. */
    QString copyFrom(const QString& source) const;
    QString write(const QByteArray& bytes) const;

 private:
    QString prepare() const;

    QString mFolder;
    QString mName;
    QString mPath;
};
