#pragma once

#include "host/core/FBasicType.h"
#include "host/core/FExport.h"

#include <memory>

/** A text. Bare in `toString`, quoted in a script. */
class MERIX_EXPORT FString : public FClass<FString, FBasicType> {
 public:
    static FClassData mClass;

    explicit FString(const QString& value = QString()) : mValue(value) {}
    FObject* clone() const override { return new FString(getValue()); }

    const QString& getValue() const;
    int size() const { return mBuffer ? mSize : mValue.size(); }
    QString toString() const override { return getValue(); }
    QString toExpressionString() const override;
    void setPrimitiveValue(const FExpr<FObject>& value) override {
        mBuffer.reset();
        mValue = value.toString();
    }

    /**
     * This text followed by another one. A text that grows in a loop is extended in place and not copied each time.
     */
    FString* joined(const QString& tail) const;

 private:
    mutable QString mValue;
    /** Shared with the texts that this one was extended from; this one is its first mSize characters. */
    mutable std::shared_ptr<QString> mBuffer;
    int mSize = 0;
};

/** The name of a file. In a script a call, so that it comes back as what it was. */
class MERIX_EXPORT FFileName : public FClass<FFileName, FString> {
 public:
    static FClassData mClass;

    explicit FFileName(const QString& path = QString()) : FClass(path) {}
    FObject* clone() const override { return new FFileName(getValue()); }

    QString toExpressionString() const override;
};
