#include "host/core/FString.h"

#include "host/core/FQuotedText.h"

FClassData FString::mClass("FString", &FBasicType::mClass);
FClassData FFileName::mClass("FFileName", &FString::mClass);

QString FString::toExpressionString() const {
    return quoteText(getValue());
}

QString FFileName::toExpressionString() const {
    return QStringLiteral("fileName(") + quoteText(getValue()) + QLatin1Char(')');
}
