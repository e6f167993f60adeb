#include "host/gui/fields/FLineField.h"

#include "host/gui/base/FOneUndo.h"

#include <QLineEdit>

FLineField::FLineField(const FAttribCmd& command) : FAttributeEditor(command), mpLine(new QLineEdit(this)) {
    setControl(mpLine);
    mpLine->setReadOnly(isReadOnly());
    new FOneUndo(mpLine, FOneUndo::Change::Finished);
    connect(mpLine, &QLineEdit::textEdited, this, &FLineField::noteEntered);
}

QString FLineField::text() const {
    return mpLine->text();
}

void FLineField::showValue(const FExprBase& value, bool isCommon) {
    mShown = isCommon ? textOf(value) : QString();
    mpLine->setPlaceholderText(isCommon ? QString() : QStringLiteral("several"));
    if (mpLine->text() != mShown) {
        mpLine->setText(mShown);
        mpLine->setCursorPosition(0);
    }
    mpLine->setModified(false);
}

bool FLineField::differsFromShown() const {
    return mpLine->text() != mShown;
}
