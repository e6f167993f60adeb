#include "genericintegration/editors/FGenIntResultsFileEditor.h"

#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FResultsFileForm.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/editors/FSamplePane.h"
#include "genericintegration/editors/FSamplePointing.h"
#include "genericintegration/editors/FTemplateReports.h"
#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/marking/FValueParameters.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FChanges.h"
#include "host/core/FIni.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FViewCtrl.h"
#include "host/gui/base/FElidedLabel.h"
#include "host/gui/base/FFormRow.h"
#include "host/gui/base/FSpinBox.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/run/FResultsOutOfDateBlocker.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QVBoxLayout>

FClassData FGenIntResultsFileEditor::mClass("FGenIntResultsFileEditor", &FView::mClass);

QColor FGenIntResultsFileEditor::sAnchorBackground(168, 247, 247);
QColor FGenIntResultsFileEditor::sAnchorForeground(Qt::black);
QColor FGenIntResultsFileEditor::sResultLineBackground(207, 246, 207);
QColor FGenIntResultsFileEditor::sResultLineForeground(Qt::black);
QColor FGenIntResultsFileEditor::sColumnBackground(154, 0, 51);
QColor FGenIntResultsFileEditor::sColumnForeground(Qt::white);

namespace {

constexpr int previewDelay = 200;  // milliseconds

const char* const splitterKey = "GenericIntegration/splitter/main";
const char* const usualSplitter = "AAAA/wAAAAAAAAACAAABbQAABNAAAAAABgEAAAAB";

}  // namespace

FGenIntResultsFileEditor::FGenIntResultsFileEditor() = default;

FGenIntResultsFileEditor::FGenIntResultsFileEditor(QWidget* parent, const FExpr<FGenIntResultsFile>& file,
                                                   const FExpr<FGenIntComputation>& computation)
    : FClass(parent), mComputation(computation) {
    setOwnedElsewhere();
    mPreviewTimer.setSingleShot(true);
    mPreviewTimer.setInterval(previewDelay);
    connect(&mPreviewTimer, &QTimer::timeout, this, &FGenIntResultsFileEditor::refreshResultsPreview);
    mResultsFile = file;
    init();
    setUpdateOnDemand(false);
    setResultsFile(file);
}

FGenIntResultsFileEditor::~FGenIntResultsFileEditor() {
    if (mEdit) {
        // The focus leaves the fields after this object.
        disconnect(qApp, nullptr, this, nullptr);
        letGo();
    }
}

void FGenIntResultsFileEditor::setResultsFile(const FExpr<FGenIntResultsFile>& file) {
    if (mResultsFile) {
        removeSupplier(mResultsFile.ptr());
    }
    mResultsFile = file;
    if (mResultsFile) {
        addSupplier(mResultsFile.ptr());
    }
    takeName();
    setEnabled(static_cast<bool>(file));
    mIsStale = true;
    refresh();
    showProblems();
}

// A message of the page leads to the template.
void FGenIntResultsFileEditor::takeName() {
    if (mResultsFile) {
        setName(mResultsFile->getName());
    }
}

// ---- layout ----

void FGenIntResultsFileEditor::init() {
    setObjectName(QStringLiteral("resultTemplatePage"));
    setFrameStyle(0);
    setFocusPolicy(Qt::StrongFocus);
    auto* command = new FAttribCmdSetAverageRows(this);
    command->setName(QStringLiteral("change average rows"));
    mAverageCmd = FExpr<FAttribCmdSetAverageRows>();
    mAverageCmd.setExpr(FExprBase(command));
    mAverageAttributeEditor = FAttributeEditor::create(command);
    mpForm = new FResultsFileForm(mAverageAttributeEditor);
    mpSample = new FSamplePane(*this);
    mEdit = &mpSample->edit();
    mpPointing = std::make_unique<FSamplePointing>(mResultsFile, mSteps, *mpSample, *mpForm->mResultsTable);
    mSplitter = new QSplitter(Qt::Horizontal, this);
    mSplitter->addWidget(mpForm);
    mSplitter->addWidget(mpSample);
    mSplitter->setChildrenCollapsible(false);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    mpReports = new FTemplateReports(this);
    connect(mpReports, &FTemplateReports::chosen, this, &FGenIntResultsFileEditor::chosen);
    column->addWidget(mpReports);
    column->addWidget(mSplitter, 1);
    takeColors();
    restoreSplitter();
    connectForm();
    connectSample();
    listen();
}

void FGenIntResultsFileEditor::connectForm() {
    using Self = FGenIntResultsFileEditor;
    FResultsFileForm& form = *mpForm;
    const auto whenEdited = [this](QLineEdit* edit, void (Self::*slot)()) {
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::editingFinished, this, [this, edit, slot] {
            if (edit->isModified()) {
                edit->setModified(false);
                (this->*slot)();
            }
        });
    };
    const auto whenChosen = [this](QComboBox* combo, void (Self::*slot)(const QString&)) {
        connect(combo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                [this, combo, slot](int index) { (this->*slot)(combo->itemText(index)); });
    };
    const auto whenTurned = QOverload<int>::of(&QSpinBox::valueChanged);
    whenEdited(form.mNameEdit, &Self::fileNameChanged);
    whenEdited(form.mPathEdit, &Self::filePathChanged);
    whenEdited(form.mRegExpEdit, &Self::regExpSeparatorChanged);
    whenEdited(form.mAnchorEdit, &Self::anchorChanged);
    connect(form.mSeparatorMode, &QButtonGroup::idClicked, this, &Self::numberSeparatorChanged);
    connect(form.mSpacesAndTabsCheck, &QCheckBox::toggled, this, &Self::spacesAndTabsSeparatorChanged);
    connect(form.mDeleteValueButton, &QToolButton::clicked, this, &Self::deleteResultsValue);
    connect(form.mAddValueButton, &QToolButton::clicked, this, &Self::addResultsValue);
    whenChosen(form.mValueSelector, &Self::currentResultsValueChanged);
    connect(form.mValueSelector->lineEdit(), &QLineEdit::textEdited, this, &Self::currentResultsValueNameChanged);
    connect(form.mValueSelector->lineEdit(), &QLineEdit::editingFinished, this, [this] {
        // A name that another value has was given a suffix.
        const FExpr<FGenIntResultsFileValue> value = currentValue();
        const QSignalBlocker blocker(mpForm->mValueSelector);
        mpForm->mValueSelector->setItemText(mpForm->mValueSelector->currentIndex(), value ? value->mName : QString());
    });
    whenChosen(form.mTypeCombo, &Self::valueTypeChanged);
    whenChosen(form.mImportTypeCombo, &Self::fileImportTypeChanged);
    connect(form.mLineSpin, whenTurned, this, &Self::resultsLineChanged);
    connect(form.mColumnSpin, whenTurned, this, &Self::resultsColumnChanged);
    whenChosen(form.mOccurrenceCombo, &Self::occurrenceChanged);
    connect(form.mAverageCheck, &QCheckBox::toggled, this, &Self::averageToggled);
    connect(form.mResultsTable, &QTableWidget::cellClicked, this, &Self::selectValueViaCell);
    connect(form.mResultsTable->verticalHeader(), &QHeaderView::sectionClicked, this, &Self::selectValueViaHeader);
    // The keyboard chooses rows, too.
    connect(form.mResultsTable, &QTableWidget::currentCellChanged, this, [this](int row, int column) {
        if (mpForm->mResultsTable->hasFocus() && row >= 0) {
            selectValueViaCell(row, column);
        }
    });
    connect(form.mResultsTable, &FResultsPreview::parameterWanted, this, &Self::createParamOf);
}

void FGenIntResultsFileEditor::connectSample() {
    connect(mpPointing.get(), &FSamplePointing::rowChosen, this, &FGenIntResultsFileEditor::selectValueViaHeader);
    connect(mpPointing.get(), &FSamplePointing::valueMoved, this, [this] {
        showCurrentValue();
        refreshResultsPreview();
    });
    connect(mpPointing.get(), &FSamplePointing::valueAdded, this, [this] {
        refreshAll();
        // The user types the name at once, in place of the proposed one.
        mpForm->mValueSelector->setFocus();
        mpForm->mValueSelector->lineEdit()->selectAll();
    });
}

void FGenIntResultsFileEditor::listen() {
    mpProblems = FProblemWatch::get();
    const FChanges* changes = FChanges::instance();
    const auto follow = [this](const FManaged* object) {
        if (object == mResultsFile.getStored()) {
            refresh();
        }
    };
    connect(changes, &FChanges::objectChanged, this, follow);
    connect(changes, &FChanges::objectRenamed, this, &FGenIntResultsFileEditor::takeName);
    connect(changes, &FChanges::objectLeft, this, [this](const FManaged* object) {
        if (FExprBase(object) == mResultsFile) {
            letGo();
        }
    });
    connect(changes, &FChanges::stepDone, this, &FGenIntResultsFileEditor::followRows);
    connect(changes, &FChanges::stepUndone, this, &FGenIntResultsFileEditor::followRows);
    connect(changes, &FChanges::stepRedone, this, &FGenIntResultsFileEditor::followRows);
    connect(mpProblems.get(), &FProblemWatch::checked, this, &FGenIntResultsFileEditor::showProblems);
    connect(FViewCtrl::instance(), &FViewCtrl::applicationFontChanged, this, &FGenIntResultsFileEditor::refreshLabels);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* before, const QWidget* now) {
        if (before && isAncestorOf(before) && !(now && isAncestorOf(now))) {
            saveSplitter();
        }
    });
}

void FGenIntResultsFileEditor::restoreSplitter() {
    const QString kept = FIni().value(QString::fromLatin1(splitterKey)).toString();
    const QByteArray state = kept.isEmpty() ? QByteArray(usualSplitter) : kept.toLatin1();
    mSplitter->restoreState(QByteArray::fromBase64(state));
}

void FGenIntResultsFileEditor::saveSplitter() const {
    FIni().setValue(QString::fromLatin1(splitterKey), QString::fromLatin1(mSplitter->saveState().toBase64()));
}

void FGenIntResultsFileEditor::refreshLabels() {
    mpForm->refreshLabels();
}

void FGenIntResultsFileEditor::setColor(QColor& color, const QColor& wanted) {
    color = wanted;
    if (mpSample) {
        takeColors();
    }
}

void FGenIntResultsFileEditor::takeColors() {
    mpSample->marker().setColors({sResultLineBackground, sResultLineForeground}, {sColumnBackground, sColumnForeground},
                                 {sAnchorBackground, sAnchorForeground});
}

// ---- as a page ----

void FGenIntResultsFileEditor::goTo(int line, int column) {
    if (line > 0) {
        mpSample->goTo(line, column);
    }
}

void FGenIntResultsFileEditor::letGo() {
    mPreviewTimer.stop();
    if (FObject* file = mResultsFile.getExpr()) {
        removeSupplier(file);
    }
    mResultsFile = {};
    mComputation = {};
    mpForm->mResultsTable->letGo();
    mpSample->letGo();
    setEnabled(false);
}

void FGenIntResultsFileEditor::commitEdit() {
    if (!mResultsFile) {
        return;
    }
    for (QLineEdit* edit : {mpForm->mPathEdit, mpForm->mRegExpEdit, mpForm->mAnchorEdit}) {
        if (edit->isModified()) {
            emit edit->editingFinished();
        }
    }
}

bool FGenIntResultsFileEditor::doUpdate() const {
    auto* self = const_cast<FGenIntResultsFileEditor*>(this);
    if (!mSteps.isChanging()) {
        self->mIsStale = true;
    }
    self->refresh();
    return FView::doUpdate();
}

// Escape brings back what the template holds.
bool FGenIntResultsFileEditor::eventFilter(QObject* watched, QEvent* event) {
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (edit && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
        edit->isModified()) {
        edit->setModified(false);
        mpForm->showFileName(mResultsFile ? mResultsFile->getFileName() : QString());
        mpForm->showSeparators(mResultsFile ? FTemplateValues::separatorsOf(*mResultsFile.ptr())
                                            : FSeparatorSettings());
        refreshAnchor();
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void FGenIntResultsFileEditor::focusInEvent(QFocusEvent* event) {
    emit gotFocus();
    QFrame::focusInEvent(event);
}

void FGenIntResultsFileEditor::focusOutEvent(QFocusEvent* event) {
    saveSplitter();
    QFrame::focusOutEvent(event);
}

void FGenIntResultsFileEditor::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    refresh();
}

void FGenIntResultsFileEditor::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && mpSample) {
        takeColors();
    }
}

// ---- changes ----

void FGenIntResultsFileEditor::fileNameChanged() {
    mSteps.setFileName(mpForm->mNameEdit->text(), QStringLiteral("template name changed"));
    // The name alone: the folders are gone.
    mpForm->showFileName(mResultsFile ? mResultsFile->getFileName() : QString());
}

void FGenIntResultsFileEditor::filePathChanged() {
    QString path = mpForm->mPathEdit->text();
    if (!path.isEmpty() && !path.endsWith(u'/') && !path.endsWith(u'\\')) {
        path += u'/';
        mpForm->mPathEdit->setText(path);
    }
    mSteps.setFileName(path + mpForm->mNameEdit->text(), QStringLiteral("template path changed"));
}

void FGenIntResultsFileEditor::numberSeparatorChanged(int button) {
    Q_UNUSED(button)
    const bool numbers = mpForm->mFindNumbersRadio->isChecked();
    if (!mResultsFile || numbers == mResultsFile->getNumberSeparator()) {
        return;
    }
    mSteps.change(QStringLiteral("change column separator"),
                  [numbers](FGenIntResultsFile& file) { file.setNumberSeparator(numbers); });
    mpForm->mSpacesAndTabsRow->setVisible(!numbers);
    mpForm->mRegExpRow->setVisible(!numbers);
    highlightCurrentValue();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::spacesAndTabsSeparatorChanged() {
    const bool isOn = mpForm->mSpacesAndTabsCheck->isChecked();
    mSteps.change(QStringLiteral("change column separator"),
                  [isOn](FGenIntResultsFile& file) { file.setSpacesAndTabsSeparator(isOn); });
    highlightCurrentValue();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::regExpSeparatorChanged() {
    const QString text = mpForm->mRegExpEdit->text();
    if (FMerixCtrl::instance()->isBusy() || !mResultsFile || text == mResultsFile->getRegExprSeparator()) {
        return;
    }
    mSteps.change(QStringLiteral("change column separator"),
                  [&text](FGenIntResultsFile& file) { file.setRegExprSeparator(text); });
    highlightCurrentValue();
    refreshResultsPreview();
}

// ---- which value ----

// The one before it, or the one after the first.
QString FGenIntResultsFileEditor::getNextItemAferDeletion(const QComboBox* combo) {
    const int current = combo->currentIndex();
    return combo->itemText(current > 0 ? current - 1 : combo->count() > 1 ? 1 : 0);
}

void FGenIntResultsFileEditor::selectValueViaCell(int row, int column) {
    Q_UNUSED(column)
    const int found = mpForm->mValueSelector->findText(mpForm->mResultsTable->valueOf(row),
                                                       Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found >= 0) {
        mpForm->mValueSelector->setCurrentIndex(found);
    }
}

void FGenIntResultsFileEditor::selectValueViaHeader(int section) {
    selectValueViaCell(section, 0);
}

void FGenIntResultsFileEditor::currentResultsValueChanged(const QString& name) {
    if (!mResultsFile) {
        return;
    }
    // Two may have the same name.
    const QVariant chosen = mpForm->mValueSelector->currentData();
    const std::vector<FExpr<FObject>>& values = mResultsFile->getValues()->getObjects();
    const auto number = static_cast<std::size_t>(chosen.toInt());
    FExpr<FGenIntResultsFileValue> value(chosen.isValid() && number < values.size() ? values[number]
                                                                                    : FExpr<FObject>());
    value = value && value->mName == name ? value : mSteps.valueNamed(name);
    if (value == currentValue()) {
        return;
    }
    mLastType.clear();
    mSteps.setCurrentValue(value);
    showCurrentValue();
    mEdit->repaint();
}

void FGenIntResultsFileEditor::currentResultsValueNameChanged(const QString& name) {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!value || FMerixCtrl::instance()->isBusy() || value->mName == name) {
        return;
    }
    const QString given = mSteps.rename(name);
    QLineEdit& edit = *mpForm->mValueSelector->lineEdit();
    const int cursor = edit.cursorPosition();
    const QSignalBlocker blocker(mpForm->mValueSelector);
    mpForm->mValueSelector->setItemText(mpForm->mValueSelector->currentIndex(), given);
    // What is typed stays as it is until it is complete.
    edit.setText(name);
    edit.setCursorPosition(cursor);
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::addResultsValue(bool checked) {
    Q_UNUSED(checked)
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    const FExpr<FUnsigned> rows = value ? value->mNumAverageRows : FExpr<FUnsigned>();
    mSteps.addValue(mpForm->place(), rows.isEmpty() ? FExpr<FUnsigned>(new FUnsigned(0)) : rows);
    refreshAll();
}

void FGenIntResultsFileEditor::deleteResultsValue(bool checked) {
    Q_UNUSED(checked)
    if (!currentValue()) {
        return;
    }
    mSteps.deleteValue(getNextItemAferDeletion(mpForm->mValueSelector));
    refreshAll();
}

// ---- the current value ----

void FGenIntResultsFileEditor::valueTypeChanged(const QString& type) {
    const bool isFile = type == FFileName::null()->getClass();
    const QString importType = isFile ? mpForm->mImportTypeCombo->currentText() : QString();
    mSteps.changeValue(QStringLiteral("change value type"), [&](FGenIntResultsFileValue& value) {
        value.mType = FObject::getPrototype(type);
        value.mImportType = importType;
    });
    refreshFileImportType();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::fileImportTypeChanged(const QString& type) {
    mSteps.changeValue(QStringLiteral("change file import type"),
                       [&type](FGenIntResultsFileValue& value) { value.mImportType = type; });
}

void FGenIntResultsFileEditor::resultsLineChanged(int line) {
    mSteps.changeValue(
        QStringLiteral("change line"), [line](FGenIntResultsFileValue& value) { value.mLine = line; }, true);
    previewSoon();
    highlightCurrentValue();
}

void FGenIntResultsFileEditor::resultsColumnChanged(int column) {
    mSteps.changeValue(
        QStringLiteral("change column"), [column](FGenIntResultsFileValue& value) { value.mColumn = column; }, true);
    previewSoon();
    highlightCurrentValue();
}

void FGenIntResultsFileEditor::anchorChanged() {
    const QString text = mpForm->mAnchorEdit->text();
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (FMerixCtrl::instance()->isBusy() || !value || text == value->mAnchor) {
        return;
    }
    mSteps.change(QStringLiteral("change anchor"), [&text](FGenIntResultsFile& file) { file.setCurrentAnchor(text); });
    previewSoon();
    highlightCurrentValue();
}

void FGenIntResultsFileEditor::occurrenceChanged(const QString& occurrence) {
    const bool isFirst = occurrence == QLatin1String("First");
    if (!currentValue()) {
        return;
    }
    mSteps.change(QStringLiteral("change occurrence"), [isFirst](FGenIntResultsFile& file) {
        file.setCurrentOccurrence(isFirst ? GenIntAnchorOccurrence::First : GenIntAnchorOccurrence::Last);
    });
    refreshResultsPreview();
    highlightCurrentValue();
    mEdit->repaint();
}

void FGenIntResultsFileEditor::averageToggled(bool isOn) {
    const QString label = isOn ? QStringLiteral("active") : QStringLiteral("deactivate");
    mSteps.changeValue(label + QStringLiteral(" average calculation"), [&](FGenIntResultsFileValue& value) {
        value.mCalcAverage = isOn;
        const QString type = FTemplateValues::typeOf(value)->getClass();
        const FObject* before = FObject::getPrototype(mLastType);
        value.mType = isOn || !before ? FDouble::null() : before;
        mLastType = isOn ? type : QString();
    });
    refreshResultsValueType();
    refreshAverage();
    previewSoon();
    highlightCurrentValue();
}

void FGenIntResultsFileEditor::averageChanged(const FExpr<FUnsigned>& rows) {
    mSteps.changeValue(
        QStringLiteral("change average rows"),
        [&rows](FGenIntResultsFileValue& value) { value.setNumAverageRows(rows); }, true);
    refreshResultsPreview();
    highlightCurrentValue();
}

void FGenIntResultsFileEditor::showProblems() {
    mpReports->show(mResultsFile ? mpProblems->problemsOf(mResultsFile->getName()) : FSetUpCheck::Problems(),
                    notices());
}

QStringList FGenIntResultsFileEditor::notices() const {
    const int line = mpSample->firstLongLine();
    return line == 0 ? QStringList()
                     : QStringList(QStringLiteral("Line %1 has more than %L2 characters: it is shown in pieces.")
                                       .arg(line)
                                       .arg(FLongLines::longest));
}

void FGenIntResultsFileEditor::chosen(const FSetUpProblem& problem) {
    const int found = mpForm->mValueSelector->findText(problem.part, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!problem.part.isEmpty() && found >= 0) {
        mpForm->mValueSelector->setCurrentIndex(found);
        mpForm->mValueSelector->setFocus();
    } else if (mpForm->mFindNumbersRadio->isEnabled()) {
        mpForm->mSeparatorMode->checkedButton()->setFocus();
    }
}

// ---- parameters ----

void FGenIntResultsFileEditor::createParam() {
    const QTableWidget* table = mpForm->mResultsTable;
    const QPoint place = table->viewport()->mapFromGlobal(QCursor::pos());
    const int column = table->columnAt(place.x()) - 2;
    createParamOf(column >= 0 && column < table->columnCount() ? table->rowAt(place.y()) : -1);
}

void FGenIntResultsFileEditor::createParamOf(int row) {
    if (!mComputation && mResultsFile) {
        mComputation = FExpr<FGenIntComputation>(FValueParameters::readersOf(*mResultsFile.ptr()).value(0));
    }
    if (!mComputation) {
        return;
    }
    const auto report = [this](const QString& reason) {
        FLogMsg::error(getName(), QStringLiteral("Cannot create parameter."), reason, FLogMsg::Stream::StandardOutput);
    };
    if (!mResultsFile) {
        report(QStringLiteral("No template file found."));
        return;
    }
    const QString value = mpForm->mResultsTable->valueOf(row);
    if (value.isEmpty()) {
        report(QStringLiteral("Index out of range."));
        return;
    }
    mSteps.createParameter(value, mComputation->getName());
}

// ---- showing ----

void FGenIntResultsFileEditor::refresh() {
    if (mSteps.isChanging() || !mEdit || !mResultsFile) {
        return;
    }
    mIsStale = true;
    if (!isVisible()) {
        return;
    }
    mIsStale = false;
    const FResultsOutOfDateBlocker blocker;
    mpForm->showFileName(mResultsFile->getFileName());
    if (mpSample->setText(mResultsFile->getPlainContent())) {
        mResultsFile->setContentAltered(false);
    }
    mpForm->showSeparators(FTemplateValues::separatorsOf(*mResultsFile.ptr()));
    fillSelector(mResultsFile->getValues()->getObjects());
    // Reader and marks each have a copy of the text; that of the reader is gone before the other is made.
    refreshResultsPreview();
    showCurrentValue();
}

// After values came or went.
void FGenIntResultsFileEditor::refreshAll() {
    if (!mResultsFile) {
        return;
    }
    mLastType.clear();
    refreshValuesSelector();
    showCurrentValue();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::showCurrentValue() {
    refreshResultsValueType();
    refreshFileImportType();
    refreshResultsValues();
    refreshAnchor();
    refreshAverage();
    mpForm->enableFields(static_cast<bool>(currentValue()));
    highlightCurrentValue();
    mpForm->mResultsTable->select(mpForm->mValueSelector->currentText());
}

void FGenIntResultsFileEditor::refreshValuesSelector() {
    std::vector<FExpr<FObject>> values = mResultsFile->getValues()->getObjects();
    FGenIntReader::instance()->sortValues(values, mpSample->text());
    fillSelector(values);
}

void FGenIntResultsFileEditor::fillSelector(const std::vector<FExpr<FObject>>& values) {
    mpForm->showValues(values, mResultsFile->getValues()->getObjects(), currentValue());
}

void FGenIntResultsFileEditor::refreshResultsValues() {
    mpForm->showNumbers(currentValue());
    mAverageCmd.getStored()->setOutOfDate(true);
    mAverageAttributeEditor->refresh();
}

void FGenIntResultsFileEditor::refreshResultsValueType() {
    mpForm->showType(currentValue());
}

void FGenIntResultsFileEditor::refreshFileImportType() {
    mpForm->showImportType(currentValue());
}

void FGenIntResultsFileEditor::refreshAnchor() {
    mpForm->showAnchor(currentValue());
}

void FGenIntResultsFileEditor::refreshAverage() {
    mpForm->showAverage(currentValue());
}

// ---- marks and preview ----

void FGenIntResultsFileEditor::highlightCurrentValue() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!value || mIsStale) {
        mpSample->unmark();
        mpForm->mPlaceLabel->show(QString());
        return;
    }
    const FFoundValue found = mpSample->mark(FTemplateValues::describe(*value.ptr()), mpForm->separators());
    mpForm->showPlace(found, found.textIn(mpSample->sample().text()), FTemplateValues::isFileName(*value.ptr()));
    explainFrame();
}

void FGenIntResultsFileEditor::explainFrame() {
    const QString reason = QStringLiteral(
        "It is read at the frame in the sample, not at the marked column. Choose an anchor that occurs once in its "
        "line");
    mpForm->mResultsTable->setNote(mpForm->mValueSelector->currentText(),
                                   mpSample->isReadElsewhere() ? reason : QString());
}

// The rows of an average may be an expression, whose value changes while the template stays as it is.
void FGenIntResultsFileEditor::followRows() {
    if (!mResultsFile || mIsStale || mSteps.isChanging()) {
        return;
    }
    const FTemplateValues::Values values = FTemplateValues::among(mResultsFile->getValues()->getObjects());
    const bool isThere = std::any_of(values.begin(), values.end(), [](const FGenIntResultsFileValue* value) {
        const FObject* rows = value->mCalcAverage ? value->mNumAverageRows.getStored() : nullptr;
        return rows && (rows->isCmd() || rows->holdsValue());
    });
    if (isThere) {
        previewSoon();
        highlightCurrentValue();
    }
}

void FGenIntResultsFileEditor::previewSoon() {
    if (FMerixCtrl::instance()->isLoadingProject()) {
        refreshResultsPreview();
    } else {
        mPreviewTimer.start();
    }
}

void FGenIntResultsFileEditor::refreshResultsPreview() {
    mPreviewTimer.stop();
    FExpr<FTableData> table;
    if (mResultsFile && !mResultsFile->getPlainContent().isEmpty()) {
        table = FExpr<FTableData>(new FTableData);
        FGenIntReader::instance()->parseFile(mResultsFile, table.ptr(), QString());
    }
    if (!table || table->count() == 0) {
        setResultsPreviewBlank();
        return;
    }
    mpForm->mResultsTable->show(table);
    mpForm->mResultsTable->select(mpForm->mValueSelector->currentText());
    explainFrame();
}

void FGenIntResultsFileEditor::setResultsPreviewBlank() {
    mpForm->mResultsTable->setBlank();
}
