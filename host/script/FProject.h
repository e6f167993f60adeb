#pragma once

#include "host/script/FAutosave.h"
#include "host/script/FProjectLock.h"

/**
 * The open project: the model with the file that it is kept in.
 *
 * Of a project `NAME.mrx`, `NAME.mrx~` is the version before the last save, `NAME.mrx.autosave` the unsaved work,
 * `NAME.mrx.autosave~` unsaved work of an earlier session that nobody took, `NAME.mrx.damaged` a file that couldn't be
 * read whole and was saved over, and `NAME.mrx.lock` tells other processes that it is open.
 */
class FProject {
 public:
    static FProject* instance();

    /** An empty project without a file. */
    bool create();
    /**
     * Opens a project in place of the present one. False if there were errors, each of which has been told: if the file
     * can't be read or is of a newer format the present project stays, else what could be read is there.
     * @param recover  whether to take the unsaved work that a crash has left
     */
    bool open(const QString& path, bool recover);
    /** Saves under the present name, or under another one, which is the project's from then on. */
    bool save(const QString& path);
    /** An orderly end: unsaved work is given up. */
    void close();

 private:
    FProject() = default;

    static QString fullPath(const QString& path);
    static bool isIdle(const char* command);
    static void clearModel();
    void use(const QString& file, bool hasUnsaved);
    void tellOfAutosave(const QString& file, bool recover) const;
    QString keepPrevious(const QString& file) const;

    FProjectLock mLock;
    FAutosave mAutosave;
    bool mIsDamaged = false;  //!< the file holds what couldn't be read
};
