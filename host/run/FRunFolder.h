#pragma once

#include "host/core/FExport.h"

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * The folder of a computation's runs, and the one beside it for what the run before left. Files that a user has put
 * into the folder stay where they are; what a run has written moves on before the next one. Both are the program's own,
 * and no links; the folders above may be, so that runs can lie on another disk.
 */
class MERIX_EXPORT FRunFolder {
 public:
    /** Both absolute; a slash at the end doesn't matter. */
    FRunFolder(const QString& folder, const QString& earlier);

    /**
     * Before a run: makes the folder, and replaces what is in the earlier one by the named files and by all that the
     * last run left. False, with the reason for the user, if the folder is a link, or if a file can't be moved: it must
     * not be read as new.
     * @param named  files relative to the folder; those whose names lead out of it are passed over, and one that does
     *               so through a link in the folder is a reason to fail
     */
    bool moveAside(const QStringList& named, QString& reason);
    /** After a run: notes what it has made or changed since `moveAside`, if that succeeded. */
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
