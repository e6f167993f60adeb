#pragma once

#include "host/gui/fields/FLineField.h"

/** A line of text that is taken unchanged. */
class MERIX_EXPORT FTextField : public FLineField {
    Q_OBJECT

 public:
    explicit FTextField(const FAttribCmd& command) : FLineField(command) {}

 protected:
    QString textOf(const FExprBase& value) const override;
    FExprBase enteredValue(QString& fault) const override;
};
