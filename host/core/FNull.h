#pragma once

#include "host/core/FBasicType.h"
#include "host/core/FExport.h"

/** The script value `NULL`: its prototype is the value. */
class MERIX_EXPORT FNull : public FClass<FNull, FBasicType> {
 public:
    static FClassData mClass;

    QString toString() const override { return QStringLiteral("NULL"); }
};
