#pragma once

#include "host/core/FManaged.h"

#include <QSet>

class FDefinitionGenInt;
class QIODevice;

/** The part of an exchange file after the entries: what belongs to a definition, as script text. */
class FGenIntObjectArea {
 public:
    /**
     * Writes the definition's files, the objects, and the source objects of its geometry exports of kind 1 unless the
     * file has them already. Warns about other objects that values name. Returns false if not everything could be
     * written.
     * @param inFile  the objects in the file; those that are written join them, and the definition
     */
    static bool write(QIODevice* device, const FDefinitionGenInt& definition, QSet<FExpr<FManaged>> objects,
                      QSet<FExpr<FManaged>>& inFile);
};
