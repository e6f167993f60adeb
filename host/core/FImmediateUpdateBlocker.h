#pragma once

#include "host/core/FExport.h"

/** While one exists, immediate updates are deferred; the end of the last one executes them. */
class MERIX_EXPORT FImmediateUpdateBlocker {
 public:
    FImmediateUpdateBlocker();
    ~FImmediateUpdateBlocker();
    FImmediateUpdateBlocker(const FImmediateUpdateBlocker&) = delete;
    FImmediateUpdateBlocker& operator=(const FImmediateUpdateBlocker&) = delete;

    static bool isBlocked();

    /** Executes deferred updates now in spite of blockers; returns the number of blockers, for `resume`. */
    static int suspend();
    static void resume(int blockers);
};
