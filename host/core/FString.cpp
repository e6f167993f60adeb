#include "host/core/FString.h"

#include "host/core/FQuotedText.h"

FClassData FString::mClass("FString", &FBasicType::mClass);
FClassData FFileName::mClass("FFileName", &FString::mClass);

const QString& FString::getValue() const {
    if (mBuffer) {
        mValue = QString(mBuffer->constData(), mSize);
        mBuffer.reset();
    }
    return mValue;
}

FString* FString::joined(const QString& tail) const {
    constexpr int shortText = 1000;
    if (size() < shortText) {
        return new FString(getValue() + tail);
    }
    std::shared_ptr<QString> buffer = mBuffer;
    if (!buffer || buffer->size() != mSize) {
        buffer = std::make_shared<QString>(getValue().constData(), getValue().size());
    }
    buffer->append(tail);
    auto* longer = new FString;
    longer->mSize = buffer->size();
    longer->mBuffer = std::move(buffer);
    return longer;
}

QString FString::toExpressionString() const {
    return quoteText(getValue());
}

QString FFileName::toExpressionString() const {
    return QStringLiteral("fileName(") + quoteText(getValue()) + QLatin1Char(')');
}
