#pragma once

#include "host/core/FExport.h"
#include "host/design/FDefinition.h"

/** A definition whose entries come from a user rather than from a program. */
class MERIX_EXPORT FDefinitionCustomBase : public FClass<FDefinitionCustomBase, FDefinition> {
 public:
    static FClassData mClass;

    explicit FDefinitionCustomBase(const QString& name = QString()) : FClass(name) {}

 protected:
    using FDefinition::init;
    /** Copies all entry definitions. */
    void init(const FDefinitionCustomBase* other);
};
