#pragma once

#include "host/core/FExport.h"

/** What the user has set for the runs that windows start: each key and its default once. */
namespace FRunSettings {

/** Whether a run first brings the computations up to date whose results it uses; on by default. */
MERIX_EXPORT bool areSuppliersFirst();
MERIX_EXPORT void setSuppliersFirst(bool areFirst);

}  // namespace FRunSettings
