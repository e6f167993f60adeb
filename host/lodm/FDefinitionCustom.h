#pragma once

#include "host/lodm/FDefinitionCustomBase.h"

/** A definition that can be exchanged as a file. */
class FDefinitionCustom : public FClass<FDefinitionCustom, FDefinitionCustomBase> {
 public:
    static FClassData mClass;

    explicit FDefinitionCustom(const QString& name = QString()) : FClass(name) {}

 protected:
    using FDefinitionCustomBase::init;
};
