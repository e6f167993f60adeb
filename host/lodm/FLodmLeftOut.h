#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"

#include <QSet>

class FDefinition;

/**
 * Warns if defaults of entries, or values, designs and attributes of saved objects, name objects that an exchange file
 * doesn't contain: such a value can be read only where objects of these names exist.
 * @param saved   the objects that are saved along with the definition, its templates among them
 * @param inFile  all objects in the file; the definition needn't be among them
 */
MERIX_EXPORT void warnOfLeftOut(const FDefinition& definition, const QSet<FExpr<FManaged>>& saved,
                                const QSet<FExpr<FManaged>>& inFile);
