#pragma once

#include "host/core/FExport.h"

#include "host/core/FManaged.h"

#include <QSet>

class FDefinition;

/**
 * Warns if defaults of entries, or values of configurations in the file, name objects that an exchange file doesn't
 * contain: such a value can be read only where objects of these names exist.
 * @param saved  the objects in the file besides the definition
 */
MERIX_EXPORT void warnOfLeftOut(const FDefinition& definition, const QSet<FExpr<FManaged>>& saved);
