#pragma once

#include "host/core/FExport.h"
#include "host/design/FDefinition.h"

/** A definition whose entries a user makes, rather than a program. */
class MERIX_EXPORT FDefinitionCustomBase : public FClass<FDefinitionCustomBase, FDefinition> {
 public:
    static FClassData mClass;

    explicit FDefinitionCustomBase(const QString& name = QString()) : FClass(name) {}

 protected:
    using FDefinition::init;
    /** Takes over a copy of all entry definitions. */
    void init(const FDefinitionCustomBase* other);
};
