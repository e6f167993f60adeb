#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"

/** A design of a study: what has a name and a folder of its own for its runs. */
class MERIX_EXPORT FDesign : public FClass<FDesign, FEntity> {
 public:
    static FClassData mClass;

    explicit FDesign(const QString& name = QString()) : FClass(name) {}
    static FDesign* create(const QString& name);
};
