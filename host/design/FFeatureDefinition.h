#pragma once

#include "host/core/FStateField.h"
#include "host/design/FFeatureDefinitionBase.h"

#include <QList>

/** A feature definition that makes the entities of a list. */
class MERIX_EXPORT FFeatureDefinition : public FClass<FFeatureDefinition, FFeatureDefinitionBase> {
 public:
    static FClassData mClass;

    static FFeatureDefinition* create(const QString& name);

    /** Those that have left the model aren't among them. */
    QList<FExpr<FEntity>> getEntities() const override;
    /** Entities that depend on this object are left out, with a message. */
    void setEntities(const QList<FExpr<FEntity>>& entities);

 protected:
    explicit FFeatureDefinition(const QString& name = QString()) : FClass(name) {}
    void letGo() override;

 private:
    friend class FClass<FFeatureDefinition, FFeatureDefinitionBase>;

    static std::vector<std::unique_ptr<FStateField>> fields();

    QList<FExpr<FEntity>> mEntities;
};
