#include "host/gui/fields/FTextField.h"

QString FTextField::textOf(const FExprBase& value) const {
    const auto* text = dynamic_cast<const FString*>(valueObject(value));
    return text ? text->getValue() : QString();
}

FExprBase FTextField::enteredValue(QString& fault) const {
    Q_UNUSED(fault)
    return FExprBase(new FString(text()));
}
