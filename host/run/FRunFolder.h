#pragma once

#include "host/core/FExport.h"

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * The folder of a computation's runs, and another one for the files of the run before. Files that a user has put into
 * the folder stay there; files that a run has written move to the other folder before the next run. Neither folder may
 * be a link, but the folders above may, so that runs can be kept on another disk.
 */
class MERIX_EXPORT FRunFolder {
 public:
    /** Both absolute; a slash at the end doesn't matter. */
    FRunFolder(const QString& folder, const QString& earlier);

    /**
     * Before a run: creates the folder, and moves the named files and all files that the last run left to the earlier
     * folder, whose contents they replace. False, with the reason for the user, if the folder is a link or a file can't
     * be moved, since it could be mistaken for a new one.
     * @param named  files relative to the folder. A name that leads out of the folder is ignored, but one that does so
     *               through a link in the folder is an error.
     */
    bool moveAside(const QStringList& named, QString& reason);
    /** After a run: notes which files were created or changed since `moveAside`, if that succeeded. */
    void noteLeft() const;

 private:
    struct Stamp {
        qint64 size;
        QDateTime changed;
        bool operator==(const Stamp&) const = default;
    };
    /** The files and folders below the folder by relative path. */
    QHash<QString, Stamp> list() const;
    QStringList readNotes() const;
    void emptyEarlier() const;
    bool staysInside(const QStringList& named, QString& reason) const;
    bool moveFile(const QString& name, QString& reason) const;
    void removeEmptyFolders(QStringList folders) const;

    QString mFolder;
    QString mEarlier;
    std::optional<QHash<QString, Stamp>> mBefore;
};
