#include "host/core/FNumber.h"

#include "host/core/FNumberText.h"
#include "host/core/FString.h"

#include <cmath>
#include <limits>

FClassData FDouble::mClass("FDouble", &FBasicType::mClass);
FClassData FInteger::mClass("FInteger", &FDouble::mClass);
FClassData FUnsigned::mClass("FUnsigned", &FInteger::mClass);

namespace {

/** The value as a whole number within the bounds, given as a number or a text. */
std::optional<double> wholeNumber(const FObject& value, double least, double most) {
    std::optional<double> number;
    if (const auto* text = objectCast<FString>(&value)) {
        number = numberFromText(text->getValue());
    } else if (const auto* given = objectCast<FDouble>(&value)) {
        number = given->toDouble();
    }
    const bool isWhole = number && std::trunc(*number) == *number && *number >= least && *number <= most;
    return isWhole ? number : std::nullopt;
}

}  // namespace

FObject* FConversion<FInteger>::from(const FObject& value) {
    const std::optional<double> number = wholeNumber(value, -FInteger::most, FInteger::most);
    return number ? new FInteger(*number) : nullptr;
}

FObject* FConversion<FUnsigned>::from(const FObject& value) {
    const std::optional<double> number = wholeNumber(value, 0, std::numeric_limits<unsigned int>::max());
    return number ? new FUnsigned(static_cast<unsigned int>(*number)) : nullptr;
}

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
