#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * The lock on the folder of a run. The supervisor of a program holds it until the program and all its descendants have
 * ended, also when this program was killed meanwhile, and the system releases it.
 */
class MERIX_EXPORT FRunLock {
 public:
    /** @param path  the lock file; it need not exist */
    explicit FRunLock(const QString& path) : mPath(path) {}

    bool isHeld() const;
    /** Waits, without an event loop, until nobody holds it. False if somebody still does after that time. */
    bool waitUntilFree(int milliseconds) const;

 private:
    QString mPath;
};
