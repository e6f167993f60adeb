#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * Counts the executions of commands such as `run`, whose result tells whether they succeeded, that gave false. Whoever
 * executes a statement and ignores its value compares the counts before and after.
 */
namespace FFailedOutcomes {

MERIX_EXPORT void add(const QString& command);
/** Since the program started. */
MERIX_EXPORT int count(const QString& command);

}  // namespace FFailedOutcomes
