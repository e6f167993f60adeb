#pragma once

#include "host/gui/fields/FChoiceField.h"

#include <QStringList>

/** One of the texts of an enumeration. */
class MERIX_EXPORT FEnumField : public FChoiceField {
    Q_OBJECT

 public:
    FEnumField(const FAttribCmd& command, const QStringList& texts) : FChoiceField(command), mTexts(texts) {}

 protected:
    void showValue(const FExprBase& value, bool isCommon) override { showChoice(value.toString(), isCommon); }
    FExprBase enteredValue(QString& fault) const override;
    QStringList choices() const override { return mTexts; }

 private:
    QStringList mTexts;
};
