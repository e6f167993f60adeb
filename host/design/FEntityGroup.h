#pragma once

#include "host/core/FScope.h"
#include "host/core/FStateField.h"

#include <QList>

/** Entities that are handled together. */
class MERIX_EXPORT FEntityGroup : public FClass<FEntityGroup, FEntity> {
 public:
    static FClassData mClass;

    static FEntityGroup* create(const QString& name);

    /** Those that have left the model aren't among them. */
    QList<FExpr<FEntity>> getEntities() const;
    /** Entities that depend on this object are left out, with a message. */
    void setEntities(const QList<FExpr<FEntity>>& entities);

 protected:
    explicit FEntityGroup(const QString& name = QString()) : FClass(name) {}
    void letGo() override;

 private:
    friend class FClass<FEntityGroup, FEntity>;

    static std::vector<std::unique_ptr<FStateField>> fields();

    QList<FExpr<FEntity>> mEntities;
};
