#include "host/gui/fields/FBoolField.h"

#include <QCheckBox>

FBoolField::FBoolField(const FAttribCmd& command) : FAttributeEditor(command), mpBox(new QCheckBox(this)) {
    setControl(mpBox);
    mpBox->setEnabled(!isReadOnly());
    connect(mpBox, &QCheckBox::clicked, this, &FBoolField::enter);
}

void FBoolField::showValue(const FExprBase& value, bool isCommon) {
    const auto* flag = dynamic_cast<const FBool*>(valueObject(value));
    mpBox->setCheckState(!isCommon ? Qt::PartiallyChecked : flag && flag->getValue() ? Qt::Checked : Qt::Unchecked);
    // A user chooses between the two only.
    mpBox->setTristate(false);
    showBeside(isCommon ? QString() : QStringLiteral("several"));
}

FExprBase FBoolField::enteredValue(QString& fault) const {
    Q_UNUSED(fault)
    return FExprBase(new FBool(mpBox->isChecked()));
}

bool FBoolField::isCommitKey(const QKeyEvent& key) const {
    Q_UNUSED(key)
    return false;
}
