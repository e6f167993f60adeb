#pragma once

#include "host/core/FExport.h"

#include <QtGlobal>

/**
 * Counts the changes of the model, undo and redo included. Whoever keeps something that depends on the whole model
 * compares the count with the one that it had before.
 */
namespace FChangeCount {

MERIX_EXPORT quint64 now();
/** Something of the model has changed or is about to. */
void add();

}  // namespace FChangeCount
