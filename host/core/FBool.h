#pragma once

#include "host/core/FBasicType.h"
#include "host/core/FExport.h"

/** True or false. As a number 1 or 0. */
class MERIX_EXPORT FBool : public FClass<FBool, FBasicType> {
 public:
    static FClassData mClass;

    explicit FBool(bool value = false) : mValue(value) {}
    FObject* clone() const override { return new FBool(mValue); }

    bool getValue() const { return mValue; }
    QString toString() const override { return mValue ? QStringLiteral("true") : QStringLiteral("false"); }
    int toInt() const override { return mValue ? 1 : 0; }
    double toDouble() const override { return mValue ? 1 : 0; }
    void setPrimitiveValue(const FExpr<FObject>& value) override {
        if (const auto* basic = dynamic_cast<const FBasicType*>(value.getObject())) {
            mValue = basic->toDouble() != 0;
        }
    }

 private:
    bool mValue;
};
