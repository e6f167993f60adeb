#pragma once

#include "host/core/FBasicType.h"

/** The script value `NULL`: its prototype is the value. */
class FNull : public FClass<FNull, FBasicType> {
 public:
    static FClassData mClass;

    QString toString() const override { return QStringLiteral("NULL"); }
};
