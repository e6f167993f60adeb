#pragma once

#include "host/core/FExport.h"

#include <QValidator>

/** Lets only names of objects be typed, see FObjectName. */
class MERIX_EXPORT FObjectNameValidator : public QValidator {
 public:
    explicit FObjectNameValidator(QObject* parent) : QValidator(parent) {}

    State validate(QString& input, int& position) const override;
    void fixup(QString& input) const override;
};
