#pragma once

#include "host/core/FScope.h"

#include <QList>

/** Lists of entities that an object depends on. */
class FEntityLinks {
 public:
    /** Replaces the list. Empty handles are left out, and with a message those that depend on the object. */
    static void replace(const FManaged& owner, QList<FExpr<FEntity>>& list, const QList<FExpr<FEntity>>& wanted);
    /** Those of the list that are in the model. */
    static QList<FExpr<FEntity>> present(const QList<FExpr<FEntity>>& list);
};
