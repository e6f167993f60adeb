#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * Moves the folders of runs when a project without a file is saved for the first time: from its temporary folder to the
 * folder of results beside its file. Results and computations then refer to the new folders. As before a run, files of
 * an earlier run that are already there move aside.
 */
class MERIX_EXPORT FRunRelocation {
 public:
    /** Both are roots of results, without a slash at the end. */
    FRunRelocation(const QString& from, const QString& to) : mFrom(from), mTo(to) {}

    /** Moves the folders of all runs that have ended. Reports those that can't be moved, which stay. */
    void moveAll() const;

 private:
    QString moveRun(const QString& design, const QString& computation) const;
    static void moveNotes(const QString& from, const QString& to);
    static void moveEarlier(const QString& from, const QString& to);
    void removeEmptyFolders(const QString& design) const;

    QString mFrom;
    QString mTo;
};
