#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FStateColor.h"
#include "host/run/FRunRecord.h"

#include <memory>

class FExternComputation;

/** How windows show the state of a run. */
struct MERIX_EXPORT FRunLook {
    const char* icon;
    FStateColor::State color;

    static FRunLook of(FRunRecord::State state);
    /** The state in words, with the exit code or signal of a failure. */
    static QString textOf(const FRunRecord& run);
    /** What a run of a chain intends with the computation, else its last run; null before the first one. */
    static std::shared_ptr<const FRunRecord> runOf(const FExternComputation& computation);
    /** The text of that one. */
    static QString textOf(const FExternComputation& computation);
};
