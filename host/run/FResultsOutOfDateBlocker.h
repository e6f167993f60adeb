#pragma once

#include "host/core/FExport.h"

/**
 * While one exists, results that were read don't become out of date, so that an edit that doesn't affect their numbers
 * causes no reading of files. They don't become out of date at its end either.
 */
class MERIX_EXPORT FResultsOutOfDateBlocker {
 public:
    FResultsOutOfDateBlocker() { ++mCount; }
    ~FResultsOutOfDateBlocker() { --mCount; }
    FResultsOutOfDateBlocker(const FResultsOutOfDateBlocker&) = delete;
    FResultsOutOfDateBlocker& operator=(const FResultsOutOfDateBlocker&) = delete;

    static bool isBlocked() { return mCount > 0; }

 private:
    static int mCount;
};
