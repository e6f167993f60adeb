#pragma once

#include "host/gui/fields/FChoiceField.h"

/** An object of the model, or none. */
class MERIX_EXPORT FObjectField : public FChoiceField {
    Q_OBJECT

 public:
    /** @param type  prototype of the class of what can be chosen */
    FObjectField(const FAttribCmd& command, const FObject* type) : FChoiceField(command), mpType(type) {}

 protected:
    void showValue(const FExprBase& value, bool isCommon) override;
    FExprBase enteredValue(QString& fault) const override;
    QStringList choices() const override;

 private:
    const FObject* mpType;
};
