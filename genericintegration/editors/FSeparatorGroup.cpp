#include "genericintegration/editors/FSeparatorGroup.h"

#include "genericintegration/editors/FCommittedEdit.h"
#include "genericintegration/editors/FFormFields.h"
#include "host/gui/base/FFormRow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>
#include <QSignalBlocker>

FSeparatorGroup::FSeparatorGroup()
    : FGroupBox(QStringLiteral("Column Separator")),
      mpModes(new QButtonGroup(this)),
      mpNumbers(FFormFields::mark<QRadioButton>("findNumbers", "Find numbers")),
      mpCustom(FFormFields::mark<QRadioButton>("customSeparator", "Custom")),
      mpBlanks(FFormFields::mark<QCheckBox>("spacesAndTabs", "Spaces & Tabs")),
      mpExpression(FFormFields::named(new FCommittedEdit, "regularExpression", "Regular Expression")),
      mpBlanksRow(new FFormRow(QStringLiteral("Spaces & Tabs"), {mpBlanks})),
      mpExpressionRow(new FFormRow(QStringLiteral("Regular Expression"), {mpExpression})) {
    mpModes->addButton(mpNumbers);
    mpModes->addButton(mpCustom);
    mpNumbers->setChecked(true);
    mpBlanks->setChecked(true);
    addRow(new FFormRow(QStringLiteral("Find numbers"), {mpNumbers}));
    addRow(new FFormRow(QStringLiteral("Custom"), {mpCustom}));
    addRow(mpBlanksRow);
    mpExpressionRow->setLast();
    addRow(mpExpressionRow);
    showRows();
    connect(mpModes, &QButtonGroup::idClicked, this, [this](int button) {
        showRows();
        emit modeChosen(button);
    });
    connect(mpBlanks, &QCheckBox::toggled, this, &FSeparatorGroup::blanksToggled);
    connect(mpExpression, &FCommittedEdit::entered, this, &FSeparatorGroup::expressionEntered);
}

// Only the other mode has separators.
void FSeparatorGroup::showRows() {
    mpBlanksRow->setVisible(mpCustom->isChecked());
    mpExpressionRow->setVisible(mpCustom->isChecked());
}

void FSeparatorGroup::show(const FSeparatorSettings& separators) {
    const QSignalBlocker blocker(mpBlanks);
    (separators.findNumbers ? mpNumbers : mpCustom)->setChecked(true);
    mpBlanks->setChecked(separators.spacesAndTabs);
    mpExpression->show(separators.regularExpression);
    showRows();
}

FSeparatorSettings FSeparatorGroup::separators() const {
    return {mpNumbers->isChecked(), mpBlanks->isChecked(), mpExpression->text()};
}

void FSeparatorGroup::focus() {
    mpModes->checkedButton()->setFocus();
}

void FSeparatorGroup::commit() {
    mpExpression->commit();
}
