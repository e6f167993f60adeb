#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"

#include <QList>

/** Defines geometry that is made of entities. */
class MERIX_EXPORT FFeatureDefinitionBase : public FClass<FFeatureDefinitionBase, FEntity> {
 public:
    static FClassData mClass;

    explicit FFeatureDefinitionBase(const QString& name = QString()) : FClass(name) {}

    /** What the definition makes. */
    virtual QList<FExpr<FEntity>> getEntities() const { return {}; }
};
