#pragma once

#include "host/core/FExport.h"
#include "host/core/FUserInterface.h"

/** The tree of all objects. */
class MERIX_EXPORT FObjectTree {
 public:
    /** Shows the objects in the tree. */
    static void highlight(const QList<FExprBase>& objects) { FUserInterface::instance()->highlight(objects); }
};
