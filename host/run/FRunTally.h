#pragma once

#include "host/core/FExport.h"
#include "host/run/FRunRecord.h"

/** How many runs of this process have ended, and how. */
namespace FRunTally {

void add(FRunRecord::State state);
/** Such as "50 runs: 35 finished, 10 failed, 5 timed out". Empty unless there were several, one without success. */
MERIX_EXPORT QString text();

}  // namespace FRunTally
