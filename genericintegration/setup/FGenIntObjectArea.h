#pragma once

#include "host/core/FManaged.h"

#include <QSet>

class FDefinitionGenInt;
class QIODevice;

/** The half of an exchange file behind the entries: what belongs to a definition, as script text. */
class FGenIntObjectArea {
 public:
    /**
     * Writes the definition's files, the objects, and the source objects of its geometry exports of kind 1. Warns
     * of other objects that defaults name. False if the device doesn't take all.
     */
    static bool write(QIODevice* device, const FDefinitionGenInt& definition, QSet<FExpr<FManaged>> objects);
};
