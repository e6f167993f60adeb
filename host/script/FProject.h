#pragma once

#include "host/core/FExport.h"
#include "host/script/FAutosave.h"
#include "host/script/FProjectLock.h"

#include <QDateTime>

/**
 * The open project: the model with the file that it is kept in.
 *
 * Of a project `NAME.mrx`, `NAME.mrx~` is the version before the last save, `NAME.mrx.autosave` the unsaved work,
 * `NAME.mrx.autosave~` unsaved work of an earlier session that nobody took, `NAME.mrx.damaged` what couldn't be read
 * whole and was saved over, and `NAME.mrx.lock` tells other processes that it is open.
 */
class MERIX_EXPORT FProject {
 public:
    static FProject* instance();

    /** Whether unsaved work on projects without a file is kept, too, as FUnnamedWork tells. By default it isn't. */
    void keepUnnamed(bool isKept);
    /** An empty project without a file. */
    bool create();
    /**
     * In place of the present project, takes the unsaved work on a project without a file that a crash has left. False
     * if there were errors, each of which has been reported; the present project stays if nothing could be read.
     */
    bool recoverUnnamed(const QString& name);
    /** Whether the present project is the work of that name: one without a file. */
    bool isUnnamed(const QString& name) const { return mLock.isHeldOn(name); }
    /**
     * Opens a project in place of the present one. False if there were errors, each of which has been reported: if the
     * file can't be read, is no project or is of a newer format, the present project stays; else what could be read is
     * there.
     * @param recover  whether to take the unsaved work that a crash has left
     */
    bool open(const QString& path, bool recover);
    /** Saves under the present name, or under another one, which is the project's from then on. */
    bool save(const QString& path);
    /** Which other process has the project open, for a message; empty if none has. */
    const QString& getHolder() const { return mLock.getHolder(); }
    /** From now on, no unsaved work is kept: changes are for this process only. */
    void keepNoWork() { mKeepsWork = false; }
    /** Takes the lock over if another process had the project open and has closed it. */
    void takeOverIfFree();
    /**
     * The end of the program.
     * @param keepUnsaved  whether unsaved work stays, to be recovered; else it is given up
     */
    void close(bool keepUnsaved);

    /** The name with the ending of projects. */
    static QString withEnding(const QString& path);

 private:
    /** What a file looked like when it was read or written here. */
    struct Stamp {
        QDateTime time;
        qint64 size = -1;
        bool operator==(const Stamp& other) const { return time == other.time && size == other.size; }
    };

    FProject() = default;

    bool isOpenElsewhere(const QString& file) const;
    static bool isIdle(const char* command);
    /** The model is empty then, and unsaved work on it isn't kept. */
    void clear();
    void startUnnamed(const QString& name, bool recovered);
    static void clearModel();
    static Stamp stampOf(const QString& file);
    static void keepDamaged(const QString& file, const QString& source);
    bool mayWrite(const QString& file, FProjectLock& lock) const;
    QString write(const QString& file) const;
    QString keepPrevious(const QString& file) const;
    void use(const QString& file, bool recovered);
    void startAutosave(const QString& file, bool recovered);

    FProjectLock mLock;
    FAutosave mAutosave;
    Stamp mStamp;
    bool mKeepsWork = true;
    bool mIsDamaged = false;  //!< the file holds what couldn't be read
    bool mKeepsUnnamed = false;
};
