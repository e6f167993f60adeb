#pragma once

#include "host/core/FExport.h"

#include <QtGlobal>

/**
 * Keeps the program alive while it reads a mapped file that another program truncates: the missing part reads as zeros
 * instead of ending the program with the signal SIGBUS. Signals from other addresses are passed on.
 *
 * A guard costs a microsecond. It may be used in any thread.
 */
class MERIX_EXPORT FMappingGuard {
 public:
    /** Guards a mapping, which starts at a page boundary and must outlive this object. */
    FMappingGuard(const uchar* begin, qint64 size);
    ~FMappingGuard();
    Q_DISABLE_COPY_MOVE(FMappingGuard)

    /** False if there are too many guards already; then the mapping mustn't be read. */
    bool isActive() const { return mSlot >= 0; }

    /** Whether a part was read that is no longer in the file. */
    bool wasHit() const;

 private:
    int mSlot;
};
