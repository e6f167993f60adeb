#pragma once

#include "host/gui/fields/FLineField.h"

/**
 * A line of script text. Where the attribute keeps its expression, names are completed and the present value of the
 * expression is shown beside it; any other attribute takes the value that the text has when it is committed.
 */
class MERIX_EXPORT FScriptField : public FLineField {
    Q_OBJECT

 public:
    explicit FScriptField(const FAttribCmd& command);

 protected:
    void showValue(const FExprBase& value, bool isCommon) override;
    QString textOf(const FExprBase& value) const override;
    FExprBase enteredValue(QString& fault) const override;

 private:
    bool mIsKept;
};
