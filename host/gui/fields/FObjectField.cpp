#include "host/gui/fields/FObjectField.h"

#include "host/core/FManaged.h"
#include "host/core/FNull.h"
#include "host/core/FObjectManager.h"

void FObjectField::showValue(const FExprBase& value, bool isCommon) {
    const auto* object = dynamic_cast<const FManaged*>(value.getObject());
    showChoice(object ? object->getName() : QString(), isCommon);
}

FExprBase FObjectField::enteredValue(QString& fault) const {
    Q_UNUSED(fault)
    const FManaged* object = chosen().isEmpty() ? nullptr : FObjectManager::instance()->find(chosen());
    return object ? FExprBase(object) : FExprBase(FNull::null());
}

QStringList FObjectField::choices() const {
    QStringList names{QString()};
    for (const FManaged* object : FObjectManager::instance()->getManaged(mpType)) {
        if (!object->isDefault()) {
            names.append(object->getName());
        }
    }
    return names;
}
