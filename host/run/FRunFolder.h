#pragma once

#include "host/core/FExport.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * The folder of a computation's runs, and another one for the files of the run before. Files that a user has put into
 * the folder stay there; files that a run has written move to the other folder before the next run. Neither folder may
 * be a link, nor the folder that contains them, but the folders above may, so that runs can be kept on another disk.
 *
 * The state of the folder is recorded before a run. If no end of that run is recorded, because this program was
 * killed, everything that the run may have written moves.
 */
class MERIX_EXPORT FRunFolder {
 public:
    /** Both absolute; a slash at the end doesn't matter. */
    FRunFolder(const QString& folder, const QString& earlier);

    /** Why these files can't be written or read in the folder, for the user: a link. Empty if nothing prevents it. */
    QString fault(const QStringList& named) const;
    /**
     * Before a run: creates the folder, and moves the named files and all files that the last run left to the earlier
     * folder, whose contents they replace. False, with the reason for the user, if there is a fault, or if a file
     * can't be moved, since it could be mistaken for a new one.
     * @param named  files relative to the folder. A name that leads out of the folder is ignored, but one that does so
     *               through a link in the folder is an error.
     */
    bool moveAside(const QStringList& named, QString& reason);
    /** After `moveAside`: how many files an interrupted run may have left; 0 if the last run has ended. */
    int leftByInterruption() const { return mLeftByInterruption; }
    /** After a run: notes which files were created or changed since `moveAside`, if that succeeded. */
    void noteLeft() const;
    /** What the last run left, relative to the folder, as noted at its end. */
    QStringList left() const;

    // ---- files beside the earlier folder, without a slash at its end ----
    /** What the last run left; read if its end was recorded. */
    static QString notesFile(const QString& earlier) { return earlier + QStringLiteral(".left"); }
    /** The state of the folder before a run whose end isn't recorded yet. */
    static QString beforeFile(const QString& earlier) { return earlier + QStringLiteral(".before"); }
    /** Locked while a program runs in the folder. */
    static QString lockFile(const QString& earlier) { return earlier + QStringLiteral(".lock"); }

 private:
    /** What a file looks like. The size of a folder is -1, and its time 0: it changes with the contents. */
    struct Stamp {
        qint64 size;
        qint64 changed;  //!< milliseconds since 1970
        bool operator==(const Stamp&) const = default;
    };
    using Entries = QHash<QString, Stamp>;

    /** The files and folders below the folder by relative path. */
    Entries list() const;
    /** Those that are new or changed. */
    static QStringList changes(const Entries& before, const Entries& now);
    QStringList leftBehind();
    std::optional<Entries> readBefore() const;
    QString writeBefore() const;
    void emptyEarlier() const;
    bool moveAll(const QStringList& names, QString& reason) const;
    bool moveFile(const QString& name, QString& reason) const;
    void removeEmptyFolders(QStringList folders) const;

    QString mFolder;   // with a slash at its end
    QString mEarlier;  // without one
    std::optional<Entries> mBefore;
    int mLeftByInterruption = 0;
};
