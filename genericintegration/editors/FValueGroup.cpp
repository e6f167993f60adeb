#include "genericintegration/editors/FValueGroup.h"

#include "genericintegration/editors/FCommittedEdit.h"
#include "genericintegration/editors/FFormFields.h"
#include "genericintegration/editors/FValueSelector.h"
#include "genericintegration/io/FTemplateValues.h"
#include "host/core/FNumber.h"
#include "host/core/FString.h"
#include "host/gui/base/FFormRow.h"
#include "host/gui/base/FOneUndo.h"
#include "host/gui/base/FSpinBox.h"
#include "host/gui/fields/FAttributeEditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int greatestLine = 9999;
constexpr int greatestColumn = 999;

}  // namespace

FValueGroup::FValueGroup(FAttributeEditor* averageRows)
    : FGroupBox(QStringLiteral("Values")),
      mpSelector(new FValueSelector),
      mpType(FFormFields::combo("valueType", "Type", {FDouble::null()->getClass(), FFileName::null()->getClass()})),
      mpImportType(FFormFields::combo("importType", "Import Type", {QStringLiteral("tecplot")})),
      mpLine(FFormFields::named(new FSpinBox(-greatestLine, greatestLine), "line", "Line")),
      mpColumn(FFormFields::named(new FSpinBox(0, greatestColumn), "column", "Column")),
      mpAnchor(FFormFields::named(new FCommittedEdit, "anchor", "Anchor String")),
      mpOccurrence(FFormFields::combo("occurrence", "Occurrence", {QStringLiteral("First"), QStringLiteral("Last")})),
      mpAverage(FFormFields::mark<QCheckBox>("average", "Average")),
      mpAverageRows(averageRows),
      mpTypeRow(new FFormRow(QStringLiteral("Type"), {mpType})),
      mpImportTypeRow(new FFormRow(QStringLiteral("Import Type"), {mpImportType})),
      mpLineRow(new FFormRow(QStringLiteral("Line"), {mpLine})),
      mpAnchorRow(new FFormRow(QStringLiteral("Anchor String"), {mpAnchor})),
      mpOccurrenceRow(new FFormRow(QStringLiteral("Occurrence"), {mpOccurrence})) {
    new FOneUndo(mpLine, FOneUndo::Change::EachKey);
    new FOneUndo(mpColumn, FOneUndo::Change::EachKey);
    addRows();
    connectFields();
}

void FValueGroup::addRows() {
    auto* name = new FFormRow(QStringLiteral("Name"), {mpSelector});
    auto* column = new FFormRow(QStringLiteral("Column"), {mpColumn});
    auto* average = new FFormRow(QStringLiteral("Average"), {mpAverage, mpAverageRows});
    const QString toolTip = QStringLiteral("Number of last rows to calculate average from (useful for tabulated data)");
    for (QWidget* part : std::initializer_list<QWidget*>{average->label(), mpAverage, mpAverageRows}) {
        part->setToolTip(toolTip);
    }
    average->setLast();
    mpImportTypeRow->hide();
    for (FFormRow* row : {name, mpTypeRow, mpImportTypeRow, mpLineRow, column, mpAnchorRow, mpOccurrenceRow, average}) {
        addRow(row);
    }
}

void FValueGroup::connectFields() {
    const auto whenChosen = [this](QComboBox* combo, void (FValueGroup::*chosen)(const QString&)) {
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this, combo, chosen](int index) { emit(this->*chosen)(combo->itemText(index)); });
    };
    const auto turned = QOverload<int>::of(&QSpinBox::valueChanged);
    whenChosen(mpType, &FValueGroup::typeChosen);
    whenChosen(mpImportType, &FValueGroup::importTypeChosen);
    whenChosen(mpOccurrence, &FValueGroup::occurrenceChosen);
    connect(mpLine, turned, this, &FValueGroup::lineTurned);
    connect(mpColumn, turned, this, &FValueGroup::columnTurned);
    connect(mpAnchor, &FCommittedEdit::entered, this, &FValueGroup::anchorEntered);
    connect(mpAverage, &QCheckBox::toggled, this, &FValueGroup::averageToggled);
}

void FValueGroup::showType(const Value& value) {
    const QString type = value ? FTemplateValues::typeOf(*value.ptr())->getClass() : QString();
    FFormFields::select(*mpType, std::max(mpType->findText(type), 0));
}

// None is selected for a file of a type that isn't in the list.
void FValueGroup::showImportType(const Value& value) {
    const bool isFile = value && FTemplateValues::isFileName(*value.ptr());
    FFormFields::select(*mpImportType, isFile ? mpImportType->findText(value->mImportType) : 0);
    mpImportTypeRow->setVisible(isFile);
}

void FValueGroup::showNumbers(const Value& value) {
    mpLine->show(value ? value->mLine : 0);
    mpColumn->show(value ? value->mColumn : 0);
}

void FValueGroup::showAnchor(const Value& value) {
    mpAnchor->show(value ? value->mAnchor : QString());
    const bool isFirst = value && value->mOccurrence.get() == GenIntAnchorOccurrence::First;
    FFormFields::select(*mpOccurrence, isFirst ? 0 : 1);
}

void FValueGroup::showAverage(const Value& value) {
    const bool isOn = value && value->mCalcAverage;
    const QSignalBlocker blocker(mpAverage);
    mpAverage->setChecked(isOn);
    mpAverage->setToolTip((isOn ? QStringLiteral("deactive") : QStringLiteral("activate")) +
                          QStringLiteral(" average calculation"));
    mpAverageRows->setEnabled(isOn);
    for (FFormRow* row : {mpTypeRow, mpLineRow, mpAnchorRow, mpOccurrenceRow}) {
        row->setVisible(!isOn);
    }
    if (isOn) {
        FFormFields::select(*mpType, 0);
        mpImportTypeRow->hide();
    }
}

void FValueGroup::enableFields(bool hasValue) {
    mpSelector->enableFields(hasValue);
    for (QWidget* field :
         std::initializer_list<QWidget*>{mpType, mpImportType, mpLine, mpColumn, mpAnchor, mpOccurrence, mpAverage}) {
        field->setEnabled(hasValue);
    }
}

FValueDescription FValueGroup::place() const {
    const bool isFirst = mpOccurrence->currentIndex() == 0;
    FValueDescription place;
    place.line = mpLine->value();
    place.column = mpColumn->value();
    place.anchor = {mpAnchor->text(), isFirst ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
    place.average = mpAverage->isChecked();
    return place;
}

QString FValueGroup::importType() const {
    return mpImportType->currentText();
}

void FValueGroup::commit() {
    mpAnchor->commit();
}

QWidget* FValueGroup::faultyField() const {
    return mpAverageRows->fault().isEmpty() ? nullptr : mpAverageRows;
}
