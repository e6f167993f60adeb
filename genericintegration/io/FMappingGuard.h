#pragma once

#include <QtGlobal>

/**
 * Keeps the program alive while it reads a mapped file that another program cuts: what is no longer in the file then
 * reads as zeros, instead of the signal SIGBUS ending the program. All other such signals take their course.
 *
 * A guard costs a microsecond. It may be used in any thread.
 */
class FMappingGuard {
 public:
    /** Guards a mapping, which begins at a page and outlives this object. */
    FMappingGuard(const uchar* begin, qint64 size);
    ~FMappingGuard();
    Q_DISABLE_COPY_MOVE(FMappingGuard)

    /** False when there are too many guards already; the mapping mustn't be read then. */
    bool isActive() const { return mSlot >= 0; }

    /** Whether something was read that is no longer in the file. */
    bool wasHit() const;

 private:
    int mSlot;
};
