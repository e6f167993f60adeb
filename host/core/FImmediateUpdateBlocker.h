#pragma once

#include "host/core/FExport.h"

/** While one exists, objects with immediate update wait; they are updated when the last one goes. */
class MERIX_EXPORT FImmediateUpdateBlocker {
 public:
    FImmediateUpdateBlocker();
    ~FImmediateUpdateBlocker();
    FImmediateUpdateBlocker(const FImmediateUpdateBlocker&) = delete;
    FImmediateUpdateBlocker& operator=(const FImmediateUpdateBlocker&) = delete;

    static bool isBlocked();

    /** Has what waits updated now, whatever blockers there are; returns their number, for `resume`. */
    static int suspend();
    static void resume(int blockers);
};
