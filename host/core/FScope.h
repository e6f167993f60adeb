#pragma once

#include "host/core/FExport.h"
#include "host/core/FManaged.h"

/** A managed object that can be in a scope: what a model is made of. */
class MERIX_EXPORT FEntity : public FClass<FEntity, FManaged> {
 public:
    static FClassData mClass;

    explicit FEntity(const QString& name = QString()) : FClass(name) {}

    /** Whether the entity is geometry that a view can show. */
    virtual bool isDrawable() const { return false; }
    /** For feature definitions: whether what they make can be exported. */
    virtual bool isExportable() const { return true; }
};

/** A scope: the space in which names are unique. The working scope is the one of the whole project. */
class MERIX_EXPORT FScope : public FClass<FScope, FEntity> {
 public:
    static FClassData mClass;

    explicit FScope(const QString& name = QString()) : FClass(name) {}
};
