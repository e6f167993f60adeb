#include "genericintegration/editors/FGenIntResultsFileEditor.h"

#include "genericintegration/editors/FFileNameGroup.h"
#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FPreviewGroup.h"
#include "genericintegration/editors/FResultsFileForm.h"
#include "genericintegration/editors/FResultsFileView.h"
#include "genericintegration/editors/FResultsPreview.h"
#include "genericintegration/editors/FSamplePane.h"
#include "genericintegration/editors/FSamplePointing.h"
#include "genericintegration/editors/FSamplePreview.h"
#include "genericintegration/editors/FSeparatorGroup.h"
#include "genericintegration/editors/FValueGroup.h"
#include "genericintegration/editors/FValueSelector.h"
#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/marking/FColumnOrigin.h"
#include "genericintegration/marking/FResultSample.h"
#include "genericintegration/marking/FValueParameters.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FChanges.h"
#include "host/core/FLogMsg.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FViewCtrl.h"
#include "host/gui/fields/FAttributeEditor.h"
#include "host/run/FResultsOutOfDateBlocker.h"

#include <QApplication>
#include <QComboBox>
#include <QVBoxLayout>

FClassData FGenIntResultsFileEditor::mClass("FGenIntResultsFileEditor", &FView::mClass);

QColor FGenIntResultsFileEditor::sAnchorBackground(168, 247, 247);
QColor FGenIntResultsFileEditor::sAnchorForeground(Qt::black);
QColor FGenIntResultsFileEditor::sResultLineBackground(207, 246, 207);
QColor FGenIntResultsFileEditor::sResultLineForeground(Qt::black);
QColor FGenIntResultsFileEditor::sColumnBackground(154, 0, 51);
QColor FGenIntResultsFileEditor::sColumnForeground(Qt::white);

FGenIntResultsFileEditor::FGenIntResultsFileEditor() = default;

FGenIntResultsFileEditor::FGenIntResultsFileEditor(QWidget* parent, const FExpr<FGenIntResultsFile>& file,
                                                   const FExpr<FGenIntComputation>& computation)
    : FClass(parent), mComputation(computation) {
    setOwnedElsewhere();
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
    mpView->showProblems();
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
    mAverageCmd.setExpr(FExprBase(command));
    mAverageAttributeEditor = FAttributeEditor::create(command);
    mpView = new FResultsFileView(*this, mResultsFile, mAverageAttributeEditor);
    mEdit = &mpView->sample().edit();
    mpPointing = std::make_unique<FSamplePointing>(mResultsFile, mSteps, mpView->sample(), mpView->table());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);
    takeColors();
    connectForm();
    connectSample();
    listen();
}

void FGenIntResultsFileEditor::connectForm() {
    using Self = FGenIntResultsFileEditor;
    FResultsFileForm& form = mpView->form();
    connect(&form.fileName(), &FFileNameGroup::nameEntered, this, &Self::fileNameChanged);
    connect(&form.fileName(), &FFileNameGroup::foldersEntered, this, &Self::filePathChanged);
    const FSeparatorGroup* separators = &form.separators();
    connect(separators, &FSeparatorGroup::modeChosen, this, &Self::numberSeparatorChanged);
    connect(separators, &FSeparatorGroup::blanksToggled, this, &Self::spacesAndTabsSeparatorChanged);
    connect(separators, &FSeparatorGroup::expressionEntered, this, &Self::regExpSeparatorChanged);
    const FValueSelector* selector = &form.selector();
    connect(selector, &FValueSelector::chosen, this, &Self::currentResultsValueChanged);
    connect(selector, &FValueSelector::nameEdited, this, &Self::currentResultsValueNameChanged);
    connect(selector, &FValueSelector::nameFinished, this, &Self::showName);
    connect(selector, &FValueSelector::addWanted, this, &Self::addResultsValue);
    connect(selector, &FValueSelector::deleteWanted, this, &Self::deleteResultsValue);
    const FValueGroup* value = &form.values();
    connect(value, &FValueGroup::typeChosen, this, &Self::valueTypeChanged);
    connect(value, &FValueGroup::importTypeChosen, this, &Self::fileImportTypeChanged);
    connect(value, &FValueGroup::lineTurned, this, &Self::resultsLineChanged);
    connect(value, &FValueGroup::columnTurned, this, &Self::resultsColumnChanged);
    connect(value, &FValueGroup::anchorEntered, this, &Self::anchorChanged);
    connect(value, &FValueGroup::occurrenceChosen, this, &Self::occurrenceChanged);
    connect(value, &FValueGroup::averageToggled, this, &Self::averageToggled);
    const FResultsPreview* table = &mpView->table();
    connect(table, &FResultsPreview::rowChosen, this, &Self::selectValueViaCell);
    connect(table, &FResultsPreview::headerChosen, this, &Self::selectValueViaHeader);
    connect(table, &FResultsPreview::parameterWanted, this, &Self::createParamOf);
}

void FGenIntResultsFileEditor::connectSample() {
    connect(mpPointing.get(), &FSamplePointing::rowChosen, this, &FGenIntResultsFileEditor::selectValueViaHeader);
    connect(mpPointing.get(), &FSamplePointing::valueMoved, this, [this] {
        showCurrentValue();
        refreshResultsPreview();
    });
    connect(mpPointing.get(), &FSamplePointing::valueAdded, this, [this] {
        refreshAll();
        // The user types the name at once, in place of the proposed one, and points at the next number.
        mpView->selector().startNaming(mEdit);
        mpView->form().showFocused();
    });
}

void FGenIntResultsFileEditor::listen() {
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
    connect(FViewCtrl::instance(), &FViewCtrl::applicationFontChanged, this, &FGenIntResultsFileEditor::refreshLabels);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* before, const QWidget* now) {
        if (before && isAncestorOf(before) && !(now && isAncestorOf(now))) {
            mpView->keepDivision();
        }
    });
}

void FGenIntResultsFileEditor::refreshLabels() {
    mpView->form().refreshLabels();
}

void FGenIntResultsFileEditor::setColor(QColor& color, const QColor& wanted) {
    color = wanted;
    if (mpView) {
        takeColors();
    }
}

void FGenIntResultsFileEditor::takeColors() {
    mpView->sample().marker().setColors({sResultLineBackground, sResultLineForeground},
                                        {sColumnBackground, sColumnForeground}, {sAnchorBackground, sAnchorForeground});
}

// ---- as a page ----

void FGenIntResultsFileEditor::goTo(int line, int column) {
    if (line > 0) {
        mpView->sample().goTo(line, column);
    }
}

void FGenIntResultsFileEditor::letGo() {
    if (FObject* file = mResultsFile.getExpr()) {
        removeSupplier(file);
    }
    mResultsFile = {};
    mComputation = {};
    mpView->letGo();
    setEnabled(false);
}

void FGenIntResultsFileEditor::commitEdit() {
    if (mResultsFile) {
        mpView->form().commit();
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

void FGenIntResultsFileEditor::focusInEvent(QFocusEvent* event) {
    emit gotFocus();
    QFrame::focusInEvent(event);
}

void FGenIntResultsFileEditor::focusOutEvent(QFocusEvent* event) {
    mpView->keepDivision();
    QFrame::focusOutEvent(event);
}

void FGenIntResultsFileEditor::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    refresh();
}

void FGenIntResultsFileEditor::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && mpView) {
        takeColors();
    }
}

// ---- changes of the template ----

void FGenIntResultsFileEditor::fileNameChanged() {
    mSteps.setFileName(mpView->form().fileName().name(), QStringLiteral("template name changed"));
    // The name alone: the folders are gone.
    mpView->form().fileName().show(mResultsFile ? mResultsFile->getFileName() : QString());
}

void FGenIntResultsFileEditor::filePathChanged() {
    QString folders = mpView->form().fileName().folders();
    if (!folders.isEmpty() && !folders.endsWith(u'/') && !folders.endsWith(u'\\')) {
        folders += u'/';
        mpView->form().fileName().showFolders(folders);
    }
    mSteps.setFileName(folders + mpView->form().fileName().name(), QStringLiteral("template path changed"));
}

void FGenIntResultsFileEditor::numberSeparatorChanged(int button) {
    Q_UNUSED(button)
    const bool numbers = mpView->form().separators().separators().findNumbers;
    if (mResultsFile && numbers != mResultsFile->getNumberSeparator()) {
        mSteps.setNumberSeparator(numbers);
        readingChanged();
    }
}

void FGenIntResultsFileEditor::spacesAndTabsSeparatorChanged() {
    mSteps.setSpacesAndTabsSeparator(mpView->form().separators().separators().spacesAndTabs);
    readingChanged();
}

void FGenIntResultsFileEditor::regExpSeparatorChanged() {
    const QString expression = mpView->form().separators().separators().regularExpression;
    if (!FMerixCtrl::instance()->isBusy() && mResultsFile && expression != mResultsFile->getRegExprSeparator()) {
        mSteps.setRegularExpression(expression);
        readingChanged();
    }
}

// ---- which value ----

// The one before it, or the one after the first.
QString FGenIntResultsFileEditor::getNextItemAferDeletion(const QComboBox* combo) {
    const int current = combo->currentIndex();
    return combo->itemText(current > 0 ? current - 1 : combo->count() > 1 ? 1 : 0);
}

void FGenIntResultsFileEditor::selectValueViaCell(int row, int column) {
    Q_UNUSED(column)
    mpView->selector().choose(mpView->table().valueOf(row));
}

void FGenIntResultsFileEditor::selectValueViaHeader(int section) {
    selectValueViaCell(section, 0);
}

void FGenIntResultsFileEditor::currentResultsValueChanged(const QString& name) {
    if (!mResultsFile) {
        return;
    }
    // Two may have the same name.
    const std::vector<FExpr<FObject>>& values = mResultsFile->getValues()->getObjects();
    const int number = mpView->selector().number();
    const bool isThere = number >= 0 && static_cast<std::size_t>(number) < values.size();
    FExpr<FGenIntResultsFileValue> value(isThere ? values[static_cast<std::size_t>(number)] : FExpr<FObject>());
    value = value && value->mName == name ? value : mSteps.valueNamed(name);
    if (value == currentValue()) {
        return;
    }
    mSteps.setCurrentValue(value);
    valueLeft();
    showCurrentValue();
    mEdit->repaint();
}

void FGenIntResultsFileEditor::currentResultsValueNameChanged(const QString& name) {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!value || FMerixCtrl::instance()->isBusy() || value->mName == name) {
        return;
    }
    mpView->selector().showName(mSteps.rename(name), name);
    refreshResultsPreview();
}

// A name that another value has was given a suffix.
void FGenIntResultsFileEditor::showName() {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    mpView->selector().showName(value ? value->mName : QString());
}

void FGenIntResultsFileEditor::addResultsValue(bool checked) {
    Q_UNUSED(checked)
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    const FExpr<FUnsigned> rows = value ? value->mNumAverageRows : FExpr<FUnsigned>();
    mSteps.addValue(mpView->form().values().place(), rows.isEmpty() ? FExpr<FUnsigned>(new FUnsigned(0)) : rows);
    refreshAll();
}

void FGenIntResultsFileEditor::deleteResultsValue(bool checked) {
    Q_UNUSED(checked)
    if (!currentValue()) {
        return;
    }
    mSteps.deleteValue(getNextItemAferDeletion(&mpView->selector().combo()));
    refreshAll();
}

// ---- the current value ----

void FGenIntResultsFileEditor::valueTypeChanged(const QString& type) {
    const bool isFile = type == FFileName::null()->getClass();
    mSteps.setType(type, isFile ? mpView->form().values().importType() : QString());
    refreshFileImportType();
    readingChanged();
}

void FGenIntResultsFileEditor::fileImportTypeChanged(const QString& type) {
    mSteps.setImportType(type);
}

void FGenIntResultsFileEditor::resultsLineChanged(int line) {
    mSteps.setLine(line);
    placeChanged();
}

void FGenIntResultsFileEditor::resultsColumnChanged(int column) {
    mSteps.setColumn(column);
    placeChanged();
}

void FGenIntResultsFileEditor::anchorChanged() {
    const QString anchor = mpView->form().values().place().anchor.text;
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!FMerixCtrl::instance()->isBusy() && value && anchor != value->mAnchor) {
        mSteps.setAnchor(anchor);
        placeChanged();
    }
}

void FGenIntResultsFileEditor::occurrenceChanged(const QString& occurrence) {
    mSteps.setOccurrence(occurrence == QLatin1String("First") ? GenIntAnchorOccurrence::First
                                                              : GenIntAnchorOccurrence::Last);
    readingChanged();
    mEdit->repaint();
}

void FGenIntResultsFileEditor::averageToggled(bool isOn) {
    const FExpr<FGenIntResultsFileValue> value = currentValue();
    if (!value) {
        return;
    }
    const QString type = FTemplateValues::typeOf(*value.ptr())->getClass();
    const FObject* before = FObject::getPrototype(mLastType);
    // An average knows no anchor. The column stays that of the same number.
    const FResultSample& sample = mpView->sample().sample();
    const FValueDescription place = FTemplateValues::describePlace(*value.ptr());
    const FSeparatorSettings separators = FTemplateValues::separatorsOf(*mResultsFile.ptr());
    const std::optional<int> column = isOn ? FColumnOrigin::fromLine(sample, separators, place)
                                           : FColumnOrigin::fromAnchor(sample, separators, place);
    mSteps.setAverage(isOn, isOn || !before ? FDouble::null() : before, column.value_or(value->mColumn));
    mLastType = isOn ? type : QString();
    mAverageAttributeEditor->restore();
    refreshResultsValues();
    refreshResultsValueType();
    refreshAverage();
    placeChanged();
}

void FGenIntResultsFileEditor::averageChanged(const FExpr<FUnsigned>& rows) {
    mSteps.setAverageRows(rows);
    readingChanged();
}

void FGenIntResultsFileEditor::placeChanged() {
    mpView->preview().refreshSoon();
    highlightCurrentValue();
}

void FGenIntResultsFileEditor::readingChanged() {
    highlightCurrentValue();
    refreshResultsPreview();
}

// ---- parameters ----

void FGenIntResultsFileEditor::createParam() {
    createParamOf(mpView->table().rowOfButtonAt(QCursor::pos()));
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
    const QString value = mpView->table().valueOf(row);
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
    mpView->showTemplate();
    mpView->showValues(mResultsFile->getValues()->getObjects(), currentValue());
    // Reader and marks each have a copy of the text; that of the reader is gone before the other is made.
    refreshResultsPreview();
    showCurrentValue();
}

// After values came or went.
void FGenIntResultsFileEditor::refreshAll() {
    if (!mResultsFile) {
        return;
    }
    valueLeft();
    refreshValuesSelector();
    showCurrentValue();
    refreshResultsPreview();
}

void FGenIntResultsFileEditor::valueLeft() {
    mLastType.clear();
    mAverageAttributeEditor->restore();
}

void FGenIntResultsFileEditor::showCurrentValue() {
    refreshResultsValueType();
    refreshFileImportType();
    refreshResultsValues();
    refreshAnchor();
    refreshAverage();
    mpView->form().values().enableFields(static_cast<bool>(currentValue()));
    highlightCurrentValue();
    mpView->table().select(mpView->selector().name());
}

void FGenIntResultsFileEditor::refreshValuesSelector() {
    std::vector<FExpr<FObject>> values = mResultsFile->getValues()->getObjects();
    FGenIntReader::instance()->sortValues(values, mpView->sample().text());
    mpView->showValues(values, currentValue());
}

void FGenIntResultsFileEditor::refreshResultsValues() {
    mpView->form().values().showNumbers(currentValue());
    mAverageCmd.getStored()->setOutOfDate(true);
    mAverageAttributeEditor->refresh();
}

void FGenIntResultsFileEditor::refreshResultsValueType() {
    mpView->form().values().showType(currentValue());
}

void FGenIntResultsFileEditor::refreshFileImportType() {
    mpView->form().values().showImportType(currentValue());
}

void FGenIntResultsFileEditor::refreshAnchor() {
    mpView->form().values().showAnchor(currentValue());
}

void FGenIntResultsFileEditor::refreshAverage() {
    mpView->form().values().showAverage(currentValue());
}

// ---- marks and preview ----

void FGenIntResultsFileEditor::highlightCurrentValue() {
    mpView->mark(mIsStale ? FExpr<FGenIntResultsFileValue>() : currentValue());
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
        placeChanged();
    }
}

void FGenIntResultsFileEditor::refreshResultsPreview() {
    mpView->preview().refresh();
}

void FGenIntResultsFileEditor::setResultsPreviewBlank() {
    mpView->preview().setBlank();
}
