#pragma once

#include "host/gui/fields/FAttributeEditor.h"

class QCheckBox;

/** A check box, half checked where objects differ. */
class MERIX_EXPORT FBoolField : public FAttributeEditor {
    Q_OBJECT

 public:
    explicit FBoolField(const FAttribCmd& command);

 protected:
    void showValue(const FExprBase& value, bool isCommon) override;
    FExprBase enteredValue(QString& fault) const override;
    bool differsFromShown() const override { return true; }
    bool isCommitKey(const QKeyEvent& key) const override;

 private:
    QCheckBox* mpBox;
};
