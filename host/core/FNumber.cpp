#include "host/core/FNumber.h"

#include "host/core/FNumberText.h"

#include <cmath>
#include <limits>

FClassData FDouble::mClass("FDouble", &FBasicType::mClass);
FClassData FInteger::mClass("FInteger", &FDouble::mClass);
FClassData FUnsigned::mClass("FUnsigned", &FInteger::mClass);

QString FDouble::toString() const {
    return numberText(mValue);
}

QString FDouble::toExpressionString() const {
    return std::isfinite(mValue) ? toString() : QStringLiteral("number(\"%1\")").arg(numberText(mValue).toLower());
}

int FDouble::toInt() const {
    constexpr auto least = static_cast<double>(std::numeric_limits<int>::min());
    constexpr auto most = static_cast<double>(std::numeric_limits<int>::max());
    return mValue >= least && mValue <= most ? static_cast<int>(mValue) : 0;
}

void FDouble::setPrimitiveValue(const FExpr<FObject>& value) {
    if (const auto* basic = dynamic_cast<const FBasicType*>(value.getObject())) {
        mValue = basic->toDouble();
    }
}
