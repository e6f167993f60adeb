#include "genericintegration/editors/FGenIntResultsFileEditor.h"

#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FResultsFileForm.h"
#include "genericintegration/editors/FResultsMarker.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/editors/FTemplateReports.h"
#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/marking/FPlaceProposal.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FChanges.h"
#include "host/core/FIni.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserStep.h"
#include "host/core/FViewCtrl.h"
#include "host/design/FParameter.h"
#include "host/gui/base/FElidedLabel.h"
#include "host/gui/base/FFormRow.h"
#include "host/gui/base/FGroupBox.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FSpinBox.h"
#include "host/gui/base/FToolButton.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/run/FResultsOutOfDateBlocker.h"
#include "host/run/FValueRemark.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextBlock>
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

/** Length of the folders at the start of a file name. */
int folderLength(const QString& fileName) {
    return std::max(fileName.lastIndexOf(u'/'), fileName.lastIndexOf(u'\\')) + 1;
}

void select(QComboBox& combo, int index) {
    const QSignalBlocker blocker(&combo);
    combo.setCurrentIndex(index);
}

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
    setEnabled(static_cast<bool>(file));
    mIsStale = true;
    refresh();
    showProblems();
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
    mEdit = new FGenIntResultsFileEdit(this);
    mpMarker = std::make_unique<FResultsMarker>(*mEdit);
    mSplitter = new QSplitter(Qt::Horizontal, this);
    mSplitter->addWidget(mpForm);
    mSplitter->addWidget(makeText());
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
    listen();
}

QWidget* FGenIntResultsFileEditor::makeText() {
    const bool isSmall = FViewCtrl::hasSmallScreen();
    const int margin = isSmall ? 4 : 8;
    const int spacing = isSmall ? 6 : 12;
    auto* pane = new QFrame;
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    auto* row = new QWidget;
    row->setObjectName(QStringLiteral("AttributeRow"));
    row->setProperty("last", true);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(mEdit);
    auto* group = new FGroupBox(QStringLiteral("File"));
    group->layout()->addWidget(row);
    column->addWidget(group, 1);
    return pane;
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

void FGenIntResultsFileEditor::listen() {
    mpProblems = FProblemWatch::get();
    const FChanges* changes = FChanges::instance();
    const auto follow = [this](const FManaged* object) {
        if (object == mResultsFile.getStored()) {
            refresh();
        }
    };
    connect(changes, &FChanges::objectChanged, this, follow);
    connect(changes, &FChanges::objectLeft, this, [this](const FManaged* object) {
        if (FExprBase(object) == mResultsFile) {
            letGo();
        }
    });
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
    if (mpMarker) {
        takeColors();
    }
}

void FGenIntResultsFileEditor::takeColors() {
    mpMarker->setColors({sResultLineBackground, sResultLineForeground}, {sColumnBackground, sColumnForeground},
                        {sAnchorBackground, sAnchorForeground});
}

// ---- as a page ----

void FGenIntResultsFileEditor::goTo(int line, int column) {
    if (line > 0) {
        mEdit->goTo(line, column);
        mEdit->setFocus();
    }
}

void FGenIntResultsFileEditor::letGo() {
    mPreviewTimer.stop();
    if (FObject* file = mResultsFile.getExpr()) {
        removeSupplier(file);
    }
    mResultsFile = {};
    mComputation = {};
    mPreviewTable = {};
    mpSample.reset();
    mShownText.clear();
    mpMarker->forget();
    mEdit->clear();
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
        refreshFileName();
        refreshSeparators();
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
    if (event->type() == QEvent::PaletteChange && mpMarker) {
        takeColors();
    }
}

// ---- changes ----

void FGenIntResultsFileEditor::fileNameChanged() {
    mSteps.setFileName(mpForm->mNameEdit->text(), QStringLiteral("template name changed"));
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
    const FResultsFileForm& form = *mpForm;
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    const FExpr<FUnsigned> rows = value ? value->mNumAverageRows : FExpr<FUnsigned>();
    const bool isFirst = form.mOccurrenceCombo->currentIndex() == 0;
    FValueDescription place;
    place.line = form.mLineSpin->value();
    place.column = form.mColumnSpin->value();
    place.anchor = {form.mAnchorEdit->text(), isFirst ? FAnchorOccurrence::First : FAnchorOccurrence::Last};
    place.average = form.mAverageCheck->isChecked();
    mSteps.addValue(place, rows.isEmpty() ? FExpr<FUnsigned>(new FUnsigned(0)) : rows);
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

// ---- pointing at the sample ----

std::optional<FPlaceProposal> FGenIntResultsFileEditor::proposalAt(int position) {
    FUserStep::commitEdits();
    return mResultsFile ? FPlaceProposal::at(sample(), FTemplateValues::separatorsOf(*mResultsFile.ptr()), position)
                        : std::nullopt;
}

bool FGenIntResultsFileEditor::readNumberAt(int position) {
    const std::optional<FPlaceProposal> proposal = proposalAt(position);
    if (proposal && !selectValueAt(proposal->range)) {
        mSteps.addValue(proposal->value, FExpr<FUnsigned>(new FUnsigned(0)));
        refreshAll();
        // The user types the name at once, in place of the proposed one.
        mpForm->mValueSelector->setFocus();
        mpForm->mValueSelector->lineEdit()->selectAll();
    }
    return proposal.has_value();
}

bool FGenIntResultsFileEditor::selectValueAt(FTextRange number) {
    for (int row = 0; mPreviewTable && row < mPreviewTable->getRowCount(); ++row) {
        const FNumberOrigin& origin = mPreviewTable->getOrigin(row);
        const bool isPlace = !origin.rows && origin.line > 0 && origin.column > 0;
        if (isPlace && sample().rangeOf(origin.line, origin.column, number.length) == number) {
            selectValueViaCell(row, 0);
            return true;
        }
    }
    return false;
}

void FGenIntResultsFileEditor::moveValue(const FValueDescription& place, const QString& label) {
    mSteps.moveValue(place, label);
    showCurrentValue();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::setAnchor(FTextRange selection) {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!value) {
        return;
    }
    const FSeparatorSettings separators = FTemplateValues::separatorsOf(*mResultsFile.ptr());
    const FFoundValue found = sample().read(FTemplateValues::describePlace(*value.ptr()), separators);
    // The value stays at its number if that can be counted from there.
    std::optional<FPlaceProposal> proposal;
    if (found.column > 0) {
        const FTextRange number = sample().rangeOf(found.line, found.column, 1);
        proposal = FPlaceProposal::from(sample(), separators, number.begin, selection);
    }
    if (proposal) {
        moveValue(proposal->value, QStringLiteral("change anchor"));
        return;
    }
    QTextCursor cursor(mEdit->document());
    cursor.setPosition(selection.begin);
    cursor.setPosition(selection.end(), QTextCursor::KeepAnchor);
    const QString text = cursor.selectedText();
    mSteps.changeValue(QStringLiteral("change anchor"),
                       [&text](FGenIntResultsFileValue& current) { current.mAnchor = text; });
    showCurrentValue();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::fillMenu(QMenu& menu, int position) {
    const std::optional<FPlaceProposal> proposal = proposalAt(position);
    QAction* first = menu.actions().value(0);
    const auto insert = [&](const QString& id, const QString& icon, const QString& text, bool isPossible,
                            const std::function<void()>& act) {
        auto* action = new QAction(FIcons::get(icon), text, &menu);
        action->setObjectName(id);
        action->setEnabled(isPossible);
        connect(action, &QAction::triggered, this, act);
        menu.insertAction(first, action);
    };
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    const QTextCursor cursor = mEdit->textCursor();
    const FTextRange selection{cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
    const bool isInLine = mEdit->document()->findBlock(selection.begin).contains(selection.end());
    insert(QStringLiteral("readNumber"), QStringLiteral("list-add"), QStringLiteral("&Read this number"),
           proposal.has_value(), [this, position] { readNumberAt(position); });
    insert(QStringLiteral("readHere"), QStringLiteral("go-jump"),
           value ? QStringLiteral("Read \"%1\" &here").arg(QString(value->mName).replace(u'&', QLatin1String("&&")))
                 : QStringLiteral("Read the current value &here"),
           proposal && value, [this, proposal] { moveValue(proposal->value, QStringLiteral("change place")); });
    insert(QStringLiteral("useAsAnchor"), QStringLiteral("anchor"), QStringLiteral("&Use as anchor"),
           value && isInLine && selection.length > 0, [this, selection] { setAnchor(selection); });
    if (first) {
        menu.insertSeparator(first);
    }
}

void FGenIntResultsFileEditor::showProblems() {
    mpReports->show(mResultsFile ? mpProblems->problemsOf(mResultsFile->getName()) : FSetUpCheck::Problems(), {});
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
    if (!mComputation) {
        return;
    }
    const auto report = [this](const QString& reason) {
        FLogMsg::error(getClass(), QStringLiteral("Cannot create parameter."), reason, FLogMsg::Stream::StandardOutput);
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
    const FUserStep step(QStringLiteral("create evaluation: eval_") + value);
    mResultsFile->createParam(value, mComputation->getName(), true);
}

// ---- showing ----

void FGenIntResultsFileEditor::showText(QLineEdit& edit, const QString& text) {
    if (edit.text() != text && !(edit.isModified() && edit.hasFocus())) {
        const QSignalBlocker blocker(&edit);
        edit.setText(text);
        edit.setCursorPosition(0);
    }
}

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
    refreshFileName();
    refreshText();
    refreshSeparators();
    fillSelector(mResultsFile->getValues()->getObjects());
    // Reader and marks each have a copy of the text; that of the reader is gone before the other is made.
    refreshResultsPreview();
    showCurrentValue();
}

void FGenIntResultsFileEditor::refreshFileName() {
    const QString name = mResultsFile->getFileName();
    const int folders = folderLength(name);
    showText(*mpForm->mPathEdit, name.left(folders));
    showText(*mpForm->mNameEdit, name.mid(folders));
}

void FGenIntResultsFileEditor::refreshText() {
    const QString& text = mResultsFile->getPlainContent();
    if (text == mShownText && mEdit->document()->isEmpty() == text.isEmpty()) {
        return;
    }
    const QPoint scrolled(mEdit->horizontalScrollBar()->value(), mEdit->verticalScrollBar()->value());
    mShownText = text;
    mpSample.reset();
    mpMarker->clear();  // a new text takes over the format at the cursor
    mEdit->setPlainText(text);
    mEdit->horizontalScrollBar()->setValue(scrolled.x());
    mEdit->verticalScrollBar()->setValue(scrolled.y());
    mResultsFile->setContentAltered(false);
}

void FGenIntResultsFileEditor::refreshSeparators() {
    const QSignalBlocker numbersBlocker(mpForm->mSeparatorMode);
    const QSignalBlocker blanksBlocker(mpForm->mSpacesAndTabsCheck);
    const bool numbers = mResultsFile->getNumberSeparator();
    (numbers ? mpForm->mFindNumbersRadio : mpForm->mCustomRadio)->setChecked(true);
    mpForm->mSpacesAndTabsCheck->setChecked(mResultsFile->getSpacesAndTabsSeparator());
    mpForm->mSpacesAndTabsRow->setVisible(!numbers);
    mpForm->mRegExpRow->setVisible(!numbers);
    showText(*mpForm->mRegExpEdit, mResultsFile->getRegExprSeparator());
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
    enableValueFields();
    highlightCurrentValue();
    mpForm->mResultsTable->select(mpForm->mValueSelector->currentText());
}

void FGenIntResultsFileEditor::enableValueFields() {
    const bool isThere = static_cast<bool>(currentValue());
    FResultsFileForm& form = *mpForm;
    form.mValueSelector->lineEdit()->setReadOnly(!isThere);
    for (QWidget* field : std::initializer_list<QWidget*>{
             form.mTypeCombo, form.mDeleteValueButton, form.mImportTypeCombo, form.mLineSpin, form.mColumnSpin,
             form.mAnchorEdit, form.mOccurrenceCombo, form.mAverageCheck, form.mValueSelector}) {
        field->setEnabled(isThere || (field == form.mValueSelector && form.mValueSelector->count() > 0));
    }
}

void FGenIntResultsFileEditor::refreshValuesSelector() {
    std::vector<FExpr<FObject>> values = mResultsFile->getValues()->getObjects();
    FGenIntReader::instance()->sortValues(values, mShownText);
    fillSelector(values);
}

void FGenIntResultsFileEditor::fillSelector(const std::vector<FExpr<FObject>>& values) {
    QComboBox& selector = *mpForm->mValueSelector;
    const QSignalBlocker blocker(&selector);
    const bool isTyping = selector.lineEdit()->hasFocus();
    const int cursor = selector.lineEdit()->cursorPosition();
    const std::vector<FExpr<FObject>>& all = mResultsFile->getValues()->getObjects();
    const FExpr<FGenIntResultsFileValue> current = currentValue();
    selector.clear();
    for (const FExpr<FObject>& element : values) {
        const FExpr<FGenIntResultsFileValue> value(element);
        if (value) {
            const auto number = std::find(all.begin(), all.end(), element) - all.begin();
            selector.addItem(value->mName, static_cast<int>(number));
        }
    }
    const auto place = std::find(all.begin(), all.end(), current) - all.begin();
    selector.setCurrentIndex(current ? selector.findData(static_cast<int>(place)) : -1);
    if (isTyping) {
        selector.lineEdit()->setCursorPosition(cursor);
    }
}

void FGenIntResultsFileEditor::refreshResultsValues() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    mpForm->mLineSpin->show(value ? value->mLine : 0);
    mpForm->mColumnSpin->show(value ? value->mColumn : 0);
    mAverageCmd.getStored()->setOutOfDate(true);
    mAverageAttributeEditor->refresh();
}

void FGenIntResultsFileEditor::refreshResultsValueType() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    const QString type = value ? FTemplateValues::typeOf(*value.ptr())->getClass() : QString();
    select(*mpForm->mTypeCombo, std::max(mpForm->mTypeCombo->findText(type), 0));
}

void FGenIntResultsFileEditor::refreshFileImportType() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    mpForm->mImportTypeRow->setVisible(value && FTemplateValues::isFileName(*value.ptr()));
}

void FGenIntResultsFileEditor::refreshAnchor() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    showText(*mpForm->mAnchorEdit, value ? value->mAnchor : QString());
    const bool isFirst = value && value->mOccurrence.get() == GenIntAnchorOccurrence::First;
    select(*mpForm->mOccurrenceCombo, isFirst ? 0 : 1);
}

void FGenIntResultsFileEditor::refreshAverage() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    const bool isOn = value && value->mCalcAverage;
    const QSignalBlocker blocker(mpForm->mAverageCheck);
    mpForm->mAverageCheck->setChecked(isOn);
    mpForm->mAverageCheck->setToolTip((isOn ? QStringLiteral("deactive") : QStringLiteral("activate")) +
                                      QStringLiteral(" average calculation"));
    mAverageAttributeEditor->setEnabled(isOn);
    for (FFormRow* row : {mpForm->mTypeRow, mpForm->mLineRow, mpForm->mAnchorRow, mpForm->mOccurrenceRow}) {
        row->setVisible(!isOn);
    }
    if (isOn) {
        select(*mpForm->mTypeCombo, 0);
        mpForm->mImportTypeRow->hide();
    }
}

// ---- marks and preview ----

const FResultSample& FGenIntResultsFileEditor::sample() {
    if (!mpSample) {
        mpSample = std::make_unique<FResultSample>(mShownText);
    }
    return *mpSample;
}

// As they are shown, so that a mark can follow a separator while it is being changed.
FSeparatorSettings FGenIntResultsFileEditor::shownSeparators() const {
    return {mpForm->mFindNumbersRadio->isChecked(), mpForm->mSpacesAndTabsCheck->isChecked(),
            mpForm->mRegExpEdit->text()};
}

void FGenIntResultsFileEditor::highlightCurrentValue() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!value || mIsStale) {
        mpMarker->clear();
        mpForm->mPlaceLabel->show(QString());
        return;
    }
    const FValueDescription description = FTemplateValues::describe(*value.ptr());
    const FSeparatorSettings separators = shownSeparators();
    const FFoundValue found = sample().read(description, separators);
    mpMarker->paint(FResultMarks::of(sample(), description, separators, found));
    showPlaceOf(found);
}

void FGenIntResultsFileEditor::showPlaceOf(const FFoundValue& found) {
    constexpr int mostShown = 80;  // characters
    const QString text = found.textIn(sample().text()).left(mostShown);
    const QString reason = FValueRemark::text(found, found.number);
    const QString place = found.rows         ? QStringLiteral("mean of %1 rows").arg(found.rows->count)
                          : found.column > 0 ? QStringLiteral("line %1, column %2").arg(found.line).arg(found.column)
                                             : QStringLiteral("not found");
    const QString shown = found.rows || text.isEmpty() ? place : QStringLiteral("%1: %2").arg(place, text);
    const bool isPlain = reason.isEmpty() || FTemplateValues::isFileName(*currentValue().ptr());
    mpForm->mPlaceLabel->show(isPlain ? shown : QStringLiteral("%1 %2 %3").arg(QChar(0x26a0)).arg(shown, reason));
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
    mPreviewTable = {};
    if (mResultsFile) {
        mPreviewTable = FExpr<FTableData>(new FTableData);
        if (!mResultsFile->getPlainContent().isEmpty()) {
            FGenIntReader::instance()->parseFile(mResultsFile, mPreviewTable.ptr(), QString());
        }
    }
    if (!mPreviewTable || mPreviewTable->count() == 0) {
        setResultsPreviewBlank();
        return;
    }
    mpForm->mResultsTable->show(mPreviewTable);
    mpForm->mResultsTable->select(mpForm->mValueSelector->currentText());
}

void FGenIntResultsFileEditor::setResultsPreviewBlank() {
    mPreviewTable = {};
    mpForm->mResultsTable->setBlank();
}
