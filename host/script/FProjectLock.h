#pragma once

#include "host/core/FExport.h"

#include <QLockFile>
#include <QString>

#include <memory>

/**
 * Tells other processes that a project is open here, by a file `NAME.mrx.lock` beside it. A lock counts as long as its
 * process lives. One that can't be read, as after a crash of the computer, counts for a few seconds: its process may
 * just be writing it.
 */
class MERIX_EXPORT FProjectLock {
 public:
    enum class State {
        Held,       //!< by this process
        Elsewhere,  //!< another process has the project open
        None,       //!< there can't be a lock, as in a folder that can't be written to
    };

    /** Gives up the lock held so far, unless it is on the same project. */
    State acquire(const QString& project);
    void release();
    bool isHeldOn(const QString& project) const { return mFile && mProject == project; }
    /** Who else had it when it was wanted last, for a message; empty if nobody. */
    const QString& getHolder() const { return mHolder; }
    /** Which process has a project open, for a message; empty if none has. Takes nothing and writes nothing. */
    static QString holderOf(const QString& project);

 private:
    std::unique_ptr<QLockFile> mFile;
    QString mProject;
    QString mHolder;
};
