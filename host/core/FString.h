#pragma once

#include "host/core/FBasicType.h"
#include "host/core/FExport.h"

/** A text. Bare in `toString`, quoted in a script. */
class MERIX_EXPORT FString : public FClass<FString, FBasicType> {
 public:
    static FClassData mClass;

    explicit FString(const QString& value = QString()) : mValue(value) {}
    FObject* clone() const override { return new FString(mValue); }

    const QString& getValue() const { return mValue; }
    QString toString() const override { return mValue; }
    QString toExpressionString() const override;
    void setPrimitiveValue(const FExpr<FObject>& value) override { mValue = value.toString(); }

 private:
    QString mValue;
};

/** The name of a file. In a script a call, so that it comes back as what it was. */
class MERIX_EXPORT FFileName : public FClass<FFileName, FString> {
 public:
    static FClassData mClass;

    explicit FFileName(const QString& path = QString()) : FClass(path) {}
    FObject* clone() const override { return new FFileName(getValue()); }

    QString toExpressionString() const override;
};
