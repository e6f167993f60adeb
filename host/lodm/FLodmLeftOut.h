#pragma once

#include "host/core/FExport.h"

#include "host/core/FManaged.h"

#include <QSet>

class FDefinition;

/**
 * Warns of objects that defaults of entries name and that an exchange file doesn't hold: it can be read only where such
 * objects are.
 * @param saved  what it holds beside the definition
 */
MERIX_EXPORT void warnOfLeftOut(const FDefinition& definition, const QSet<FExpr<FManaged>>& saved);
