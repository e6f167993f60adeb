#pragma once

#include "host/core/FExport.h"
#include "host/core/FObjectManager.h"

/** The entities of the project. */
class MERIX_EXPORT FModel {
 public:
    static FModel* instance();

    /** The entities of a class and of those derived from it, in the order of creation. */
    QList<FManaged*> getEntities(const FObject* prototype) const {
        return FObjectManager::instance()->getManaged(prototype);
    }
};
