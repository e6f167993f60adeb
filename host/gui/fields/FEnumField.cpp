#include "host/gui/fields/FEnumField.h"

FExprBase FEnumField::enteredValue(QString& fault) const {
    Q_UNUSED(fault)
    return FExprBase(new FString(chosen()));
}
