#pragma once

#include "host/core/FBasicType.h"
#include "host/core/FExport.h"

#include <cmath>

/** A number as a double. */
class MERIX_EXPORT FDouble : public FClass<FDouble, FBasicType> {
 public:
    static FClassData mClass;

    explicit FDouble(double value = 0) : mValue(value) {}
    FObject* clone() const override { return new FDouble(mValue); }

    QString toString() const override;
    /** What isn't finite has no literal and is written as a call of `number`. */
    QString toExpressionString() const override;
    int toInt() const override;
    double toDouble() const override { return mValue; }
    void setPrimitiveValue(const FExpr<FObject>& value) override;

 protected:
    double mValue;
};

/** A whole number of at most 53 bits. */
class MERIX_EXPORT FInteger : public FClass<FInteger, FDouble> {
 public:
    static FClassData mClass;

    /** Whole numbers beyond this aren't exact in a double. */
    static constexpr double most = 9007199254740992.0;
    /** A new FInteger for a whole number that is exact, else an FDouble. */
    static FDouble* fit(double whole) { return std::abs(whole) <= most ? new FInteger(whole) : new FDouble(whole); }

    explicit FInteger(double value = 0) : FClass(value) {}
    FObject* clone() const override { return new FInteger(mValue); }
};

/** A whole number from 0. */
class MERIX_EXPORT FUnsigned : public FClass<FUnsigned, FInteger> {
 public:
    static FClassData mClass;

    explicit FUnsigned(unsigned int value = 0) : FClass(static_cast<double>(value)) {}
    FObject* clone() const override { return new FUnsigned(getValue()); }

    unsigned int getValue() const { return static_cast<unsigned int>(mValue); }
};
