#pragma once

#include "host/core/FClass.h"
#include "host/core/FExport.h"
#include "host/core/FExpr.h"

/** Base of the values: numbers, texts, and small records that scripts write as lists. */
class MERIX_EXPORT FBasicType : public FClass<FBasicType, FObject> {
 public:
    static FClassData mClass;

    /** The text as it goes into an input file. */
    virtual QString toPlainString() const { return toString(); }
    virtual int toInt() const { return 0; }
    virtual double toDouble() const { return 0; }
    /** Takes the value over from another object, as far as that one can be read as such. */
    virtual void setPrimitiveValue(const FExpr<FObject>& value) { Q_UNUSED(value) }
};
