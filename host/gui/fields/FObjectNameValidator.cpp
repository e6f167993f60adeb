#include "host/gui/fields/FObjectNameValidator.h"

#include "host/core/FObjectName.h"

QValidator::State FObjectNameValidator::validate(QString& input, int& position) const {
    Q_UNUSED(position)
    return FObjectName::isLegal(input) ? Acceptable : FObjectName::canBecomeLegal(input) ? Intermediate : Invalid;
}

void FObjectNameValidator::fixup(QString& input) const {
    FObjectName::correctName(input);
}
