#include "genericintegration/editors/FResultsFileForm.h"

#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/io/FFoundValue.h"
#include "genericintegration/io/FTemplateValues.h"
#include "host/core/FNumber.h"
#include "host/core/FString.h"
#include "host/gui/base/FComboBox.h"
#include "host/gui/base/FElidedLabel.h"
#include "host/gui/base/FFormRow.h"
#include "host/gui/base/FGroupBox.h"
#include "host/gui/base/FOneUndo.h"
#include "host/gui/base/FSpinBox.h"
#include "host/gui/base/FToolButton.h"
#include "host/run/FValueRemark.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegExpValidator>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int greatestLine = 9999;
constexpr int greatestColumn = 999;
constexpr int paneMargin = 8;
constexpr int shortestContents = 6;  // characters

template <class Widget>
Widget* named(Widget* widget, const char* id, const char* name) {
    widget->setObjectName(QString::fromLatin1(id));
    widget->setAccessibleName(QString::fromLatin1(name));
    return widget;
}

/** A button without a text: what can be clicked is no wider than what is seen. */
template <class Button>
Button* mark(const char* id, const char* name) {
    auto* button = named(new Button, id, name);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

QComboBox* combo(const char* id, const char* name, const QStringList& items) {
    auto* box = named(new FComboBox, id, name);
    box->addItems(items);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(shortestContents);
    return box;
}

/** Length of the folders at the start of a file name. */
int folderLength(const QString& fileName) {
    return std::max(fileName.lastIndexOf(u'/'), fileName.lastIndexOf(u'\\')) + 1;
}

void select(QComboBox& combo, int index) {
    const QSignalBlocker blocker(&combo);
    combo.setCurrentIndex(index);
}

void showText(QLineEdit& edit, const QString& text) {
    if (edit.text() != text && !(edit.isModified() && edit.hasFocus())) {
        const QSignalBlocker blocker(&edit);
        edit.setText(text);
        edit.setCursorPosition(0);
    }
}

const QString& widestLabel() {
    static const QString text = QStringLiteral("Regular Expression");
    return text;
}

}  // namespace

FResultsFileForm::FResultsFileForm(QWidget* averageRows) : mpAverageRows(averageRows), mpRows(new QWidget) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(paneMargin, paneMargin, paneMargin, paneMargin);
    column->setSpacing(0);
    auto* rows = new QVBoxLayout(mpRows);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(makeGeneral());
    rows->addWidget(makeSeparators());
    mpValues = makeValues(averageRows);
    rows->addWidget(mpValues);
    mpArea = named(new QScrollArea, "resultsForm", "Result template");
    mpArea->setFrameStyle(0);
    mpArea->setWidgetResizable(true);
    mpArea->setFocusPolicy(Qt::NoFocus);
    mpArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mpArea->setWidget(mpRows);
    mpRows->installEventFilter(this);
    auto* parts = new QSplitter(Qt::Vertical);
    parts->addWidget(mpArea);
    parts->addWidget(makePreview());
    parts->setChildrenCollapsible(false);
    constexpr int formShare = 3000;  // more than any screen has, so that only the ratio counts
    constexpr int previewShare = 2000;
    parts->setSizes({formShare, previewShare});
    column->addWidget(parts);
    alignLabels();
}

FFormRow* FResultsFileForm::row(const QString& label, const QList<QWidget*>& fields, const QString& toolTip) {
    auto* fresh = new FFormRow(label, fields);
    for (QWidget* field : toolTip.isEmpty() ? QList<QWidget*>() : fields) {
        field->setToolTip(toolTip);
    }
    fresh->label()->setToolTip(toolTip);
    mLabels.append(fresh->label());
    return fresh;
}

FGroupBox* FResultsFileForm::makeGeneral() {
    mNameEdit = named(new QLineEdit, "templateName", "Template Name");
    mNameEdit->setEnabled(false);
    mPathEdit = named(new QLineEdit, "templatePath", "Subfolder");
    auto* group = new FGroupBox(QStringLiteral("General"));
    group->addRow(row(QStringLiteral("Template Name"), {mNameEdit}));
    FFormRow* path =
        row(QStringLiteral("Subfolder"), {mPathEdit}, QStringLiteral("Subfolder of current result directory"));
    path->setLast();
    group->addRow(path);
    return group;
}

FGroupBox* FResultsFileForm::makeSeparators() {
    mSeparatorMode = new QButtonGroup(this);
    mFindNumbersRadio = mark<QRadioButton>("findNumbers", "Find numbers");
    mCustomRadio = mark<QRadioButton>("customSeparator", "Custom");
    mSeparatorMode->addButton(mFindNumbersRadio);
    mSeparatorMode->addButton(mCustomRadio);
    mFindNumbersRadio->setChecked(true);
    mSpacesAndTabsCheck = mark<QCheckBox>("spacesAndTabs", "Spaces & Tabs");
    mSpacesAndTabsCheck->setChecked(true);
    mRegExpEdit = named(new QLineEdit, "regularExpression", "Regular Expression");
    auto* group = new FGroupBox(QStringLiteral("Column Separator"));
    group->addRow(row(QStringLiteral("Find numbers"), {mFindNumbersRadio}));
    group->addRow(row(QStringLiteral("Custom"), {mCustomRadio}));
    mSpacesAndTabsRow = row(QStringLiteral("Spaces & Tabs"), {mSpacesAndTabsCheck});
    mRegExpRow = row(QStringLiteral("Regular Expression"), {mRegExpEdit});
    mRegExpRow->setLast();
    group->addRow(mSpacesAndTabsRow);
    group->addRow(mRegExpRow);
    return group;
}

FGroupBox* FResultsFileForm::makeValues(QWidget* averageRows) {
    mDeleteValueButton =
        new FToolButton(QStringLiteral("deleteValue"), QStringLiteral("edit-delete"), QStringLiteral("Delete Value"));
    mValueSelector = combo("valueSelector", "Name", {});
    mValueSelector->setEditable(true);
    mValueSelector->setInsertPolicy(QComboBox::InsertAtCurrent);
    mValueSelector->setDuplicatesEnabled(true);
    mValueSelector->setCompleter(nullptr);
    mValueSelector->lineEdit()->setValidator(
        new QRegExpValidator(QRegExp(QStringLiteral("[\\d|\\s|\\w]*")), mValueSelector));
    new FOneUndo(mValueSelector, FOneUndo::Change::EachKey);
    mAddValueButton =
        new FToolButton(QStringLiteral("addValue"), QStringLiteral("list-add"), QStringLiteral("Add Value"));
    mTypeCombo = combo("valueType", "Type", {FDouble::null()->getClass(), FFileName::null()->getClass()});
    mImportTypeCombo = combo("importType", "Import Type", {QStringLiteral("tecplot")});
    mLineSpin = named(new FSpinBox(-greatestLine, greatestLine), "line", "Line");
    mColumnSpin = named(new FSpinBox(0, greatestColumn), "column", "Column");
    new FOneUndo(mLineSpin, FOneUndo::Change::EachKey);
    new FOneUndo(mColumnSpin, FOneUndo::Change::EachKey);
    mAnchorEdit = named(new QLineEdit, "anchor", "Anchor String");
    for (QLineEdit* edit : {mPathEdit, mRegExpEdit, mAnchorEdit}) {
        new FOneUndo(edit, FOneUndo::Change::Finished);
    }
    mOccurrenceCombo = combo("occurrence", "Occurrence", {QStringLiteral("First"), QStringLiteral("Last")});
    mAverageCheck = mark<QCheckBox>("average", "Average");
    const QString tip = QStringLiteral("Number of last rows to calculate average from (useful for tabulated data)");

    auto* group = new FGroupBox(QStringLiteral("Values"));
    group->addRow(row(QStringLiteral("Name"), {mDeleteValueButton, mValueSelector, mAddValueButton}));
    mLabels.last()->setBuddy(mValueSelector);
    mDeleteValueButton->setToolTip(mDeleteValueButton->text());
    mImportTypeRow = row(QStringLiteral("Import Type"), {mImportTypeCombo});
    mTypeRow = row(QStringLiteral("Type"), {mTypeCombo});
    mLineRow = row(QStringLiteral("Line"), {mLineSpin});
    FFormRow* column = row(QStringLiteral("Column"), {mColumnSpin});
    mAnchorRow = row(QStringLiteral("Anchor String"), {mAnchorEdit});
    mOccurrenceRow = row(QStringLiteral("Occurrence"), {mOccurrenceCombo});
    FFormRow* average = row(QStringLiteral("Average"), {mAverageCheck, averageRows}, tip);
    average->setLast();
    mImportTypeRow->hide();
    for (FFormRow* next : {mTypeRow, mImportTypeRow, mLineRow, column, mAnchorRow, mOccurrenceRow, average}) {
        group->addRow(next);
    }
    return group;
}

FGroupBox* FResultsFileForm::makePreview() {
    mResultsTable = new FResultsPreview;
    mPlaceLabel = named(new FElidedLabel(FStateColor::State::Secondary, this), "valuePlace", "Place of the value");
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("AttributeRow"));
    area->setProperty("last", true);
    area->setFrameStyle(0);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(mResultsTable);
    auto* group = new FGroupBox(QStringLiteral("Results Preview"));
    group->layout()->addWidget(area);
    group->layout()->addWidget(mPlaceLabel);
    return group;
}

int FResultsFileForm::labelWidth() const {
    return QFontMetrics(QApplication::font()).horizontalAdvance(widestLabel());
}

void FResultsFileForm::alignLabels() {
    for (QLabel* label : mLabels) {
        label->setFixedWidth(labelWidth());
    }
}

void FResultsFileForm::refreshLabels() {
    const int width = labelWidth();
    for (QLabel* label : mLabels) {
        // The labels of the two modes take the measure as their height; their width only has to suffice.
        if (label->buddy() == mFindNumbersRadio || label->buddy() == mCustomRadio) {
            label->setFixedHeight(width);
            label->setMaximumWidth(QWIDGETSIZE_MAX);
            label->setMinimumWidth(width);
        } else {
            label->setFixedWidth(width);
        }
    }
}

// ---- what is shown ----

void FResultsFileForm::showFileName(const QString& fileName) {
    const int folders = folderLength(fileName);
    showText(*mPathEdit, fileName.left(folders));
    showText(*mNameEdit, fileName.mid(folders));
}

void FResultsFileForm::showSeparators(const FSeparatorSettings& separators) {
    const QSignalBlocker numbersBlocker(mSeparatorMode);
    const QSignalBlocker blanksBlocker(mSpacesAndTabsCheck);
    (separators.findNumbers ? mFindNumbersRadio : mCustomRadio)->setChecked(true);
    mSpacesAndTabsCheck->setChecked(separators.spacesAndTabs);
    mSpacesAndTabsRow->setVisible(!separators.findNumbers);
    mRegExpRow->setVisible(!separators.findNumbers);
    showText(*mRegExpEdit, separators.regularExpression);
}

FSeparatorSettings FResultsFileForm::separators() const {
    return {mFindNumbersRadio->isChecked(), mSpacesAndTabsCheck->isChecked(), mRegExpEdit->text()};
}

void FResultsFileForm::showValues(const std::vector<FExpr<FObject>>& values, const std::vector<FExpr<FObject>>& all,
                                  const Value& current) {
    const QSignalBlocker blocker(mValueSelector);
    const bool isTyping = mValueSelector->lineEdit()->hasFocus();
    const int cursor = mValueSelector->lineEdit()->cursorPosition();
    mValueSelector->clear();
    for (const FExpr<FObject>& element : values) {
        const Value value(element);
        if (value) {
            const auto number = std::find(all.begin(), all.end(), element) - all.begin();
            mValueSelector->addItem(value->mName, static_cast<int>(number));
        }
    }
    const auto place = std::find(all.begin(), all.end(), current) - all.begin();
    mValueSelector->setCurrentIndex(current ? mValueSelector->findData(static_cast<int>(place)) : -1);
    if (isTyping) {
        mValueSelector->lineEdit()->setCursorPosition(cursor);
    }
}

void FResultsFileForm::showType(const Value& value) {
    const QString type = value ? FTemplateValues::typeOf(*value.ptr())->getClass() : QString();
    select(*mTypeCombo, std::max(mTypeCombo->findText(type), 0));
}

// None is selected for a file of a type that isn't in the list.
void FResultsFileForm::showImportType(const Value& value) {
    const bool isFile = value && FTemplateValues::isFileName(*value.ptr());
    select(*mImportTypeCombo, isFile ? mImportTypeCombo->findText(value->mImportType) : 0);
    mImportTypeRow->setVisible(isFile);
}

void FResultsFileForm::showNumbers(const Value& value) {
    mLineSpin->show(value ? value->mLine : 0);
    mColumnSpin->show(value ? value->mColumn : 0);
}

void FResultsFileForm::showAnchor(const Value& value) {
    showText(*mAnchorEdit, value ? value->mAnchor : QString());
    const bool isFirst = value && value->mOccurrence.get() == GenIntAnchorOccurrence::First;
    select(*mOccurrenceCombo, isFirst ? 0 : 1);
}

void FResultsFileForm::showAverage(const Value& value) {
    const bool isOn = value && value->mCalcAverage;
    const QSignalBlocker blocker(mAverageCheck);
    mAverageCheck->setChecked(isOn);
    mAverageCheck->setToolTip((isOn ? QStringLiteral("deactive") : QStringLiteral("activate")) +
                              QStringLiteral(" average calculation"));
    mpAverageRows->setEnabled(isOn);
    for (FFormRow* row : {mTypeRow, mLineRow, mAnchorRow, mOccurrenceRow}) {
        row->setVisible(!isOn);
    }
    if (isOn) {
        select(*mTypeCombo, 0);
        mImportTypeRow->hide();
    }
}

void FResultsFileForm::enableFields(bool hasValue) {
    mValueSelector->lineEdit()->setReadOnly(!hasValue);
    mValueSelector->setEnabled(hasValue || mValueSelector->count() > 0);
    for (QWidget* field : std::initializer_list<QWidget*>{mTypeCombo, mDeleteValueButton, mImportTypeCombo, mLineSpin,
                                                          mColumnSpin, mAnchorEdit, mOccurrenceCombo, mAverageCheck}) {
        field->setEnabled(hasValue);
    }
}

void FResultsFileForm::showPlace(const FFoundValue& found, const QString& text, bool isFileName) {
    constexpr int mostShown = 80;  // characters
    const QString place = found.rows         ? QStringLiteral("mean of %1 rows").arg(found.rows->count)
                          : found.column > 0 ? QStringLiteral("line %1, column %2").arg(found.line).arg(found.column)
                                             : QStringLiteral("not found");
    const QString shown =
        found.rows || text.isEmpty() ? place : QStringLiteral("%1: %2").arg(place, text.left(mostShown));
    const QString reason = isFileName ? QString() : FValueRemark::text(found, found.number);
    mPlaceLabel->show(reason.isEmpty() ? shown : QStringLiteral("%1 %2 %3").arg(QChar(0x26a0)).arg(shown, reason));
}

FValueDescription FResultsFileForm::place() const {
    const bool isFirst = mOccurrenceCombo->currentIndex() == 0;
    FValueDescription place;
    place.line = mLineSpin->value();
    place.column = mColumnSpin->value();
    place.anchor = {mAnchorEdit->text(), isFirst ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
    place.average = mAverageCheck->isChecked();
    return place;
}

// ---- room ----

// The rows take no more height than they need, and are never cut off at the sides. Where there isn't room for all of
// them, those of the values are in view at first.
bool FResultsFileForm::eventFilter(QObject* watched, QEvent* event) {
    if (watched == mpRows && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Show)) {
        mpArea->setMaximumHeight(mpRows->sizeHint().height());
        mpArea->setMinimumWidth(mpRows->minimumSizeHint().width() + mpArea->verticalScrollBar()->sizeHint().width());
    }
    if (watched == mpRows && event->type() == QEvent::Resize && isVisible() && !mHasScrolled) {
        mHasScrolled = true;
        QTimer::singleShot(0, this, [this] { mpArea->verticalScrollBar()->setValue(mpValues->y()); });
    }
    return QFrame::eventFilter(watched, event);
}
