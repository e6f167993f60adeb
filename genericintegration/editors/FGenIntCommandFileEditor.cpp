#include "genericintegration/editors/FGenIntCommandFileEditor.h"

#include "genericintegration/editors/FGenIntCommandFileEdit.h"
#include "genericintegration/editors/FGenIntCommandFileSyntaxHighlighter.h"
#include "genericintegration/editors/FTemplateReports.h"
#include "genericintegration/editors/FWrittenTextView.h"
#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FValueTable.h"
#include "genericintegration/marking/FDocumentLineEnd.h"
#include "genericintegration/marking/FLongLines.h"
#include "genericintegration/marking/FTemplateLine.h"
#include "genericintegration/marking/FWrittenText.h"
#include "host/core/FChanges.h"
#include "host/core/FObjectManager.h"
#include "host/core/FUserStep.h"
#include "host/design/FConnectorInterface.h"
#include "host/design/FEntry.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FNavigator.h"
#include "host/gui/base/FOneUndo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QToolButton>

#include <algorithm>

FClassData FGenIntCommandFileEditor::mClass("FGenIntCommandFileEditor", &FView::mClass);

FGenIntCommandFileEditor::FGenIntCommandFileEditor() : FGenIntCommandFileEditor(nullptr, {}, {}) {}

FGenIntCommandFileEditor::FGenIntCommandFileEditor(QWidget* parent, const FExpr<FGenIntCommandFile>& file,
                                                   const FExpr<FGenIntComputation>& computation)
    : FClass(parent, QString()), mComputation(computation) {
    setOwnedElsewhere();
    if (!isInitializingPrototype()) {
        init();
        setCommandFile(file);
        if (parent) {
            show();
        }
    }
}

FGenIntCommandFileEditor::~FGenIntCommandFileEditor() {
    if (mpBuffer) {
        mpBuffer->letGo();
    }
    FChanges::instance()->disconnect(this);
    // While this object is whole: losing the focus, it refers to it.
    delete mpEdit;
}

void FGenIntCommandFileEditor::init() {
    setFrameStyle(NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    auto* column = new QVBoxLayout(this);
    constexpr int margin = 5;
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    mpEdit = new FGenIntCommandFileEdit(this, this);
    mpBuffer = new FEditBuffer(*mpEdit);
    mpBuffer->setParent(this);
    mpEdit->setLineNumbers([this](int block) { return mpBuffer->longLines().numberOf(block); });
    mpReports = new FTemplateReports(this);
    column->addWidget(makeBar());
    column->addWidget(mpReports);
    column->addWidget(makeTexts(), 1);
    setFocusProxy(mpEdit);
    listen();
}

QWidget* FGenIntCommandFileEditor::makeBar() {
    auto* bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("AttributeRow"));
    auto* row = new QHBoxLayout(bar);
    constexpr int margin = 2;
    row->setContentsMargins(margin, margin, margin, margin);
    mpModeButton = new QToolButton(bar);
    mpModeButton->setObjectName(QStringLiteral("templateMode"));
    mpModeButton->setAccessibleName(QStringLiteral("Plain mode"));
    mpModeButton->setIcon(FIcons::get(QStringLiteral("document-edit")));
    mpModeButton->setCheckable(true);
    mpModeButton->setAutoRaise(true);
    row->addWidget(mpModeButton);
    auto* label = new QLabel(QStringLiteral("Template Name"), bar);
    row->addWidget(label);
    mpNameEdit = new QLineEdit(bar);
    mpNameEdit->setObjectName(QStringLiteral("templateName"));
    mpNameEdit->setAccessibleName(label->text());
    new FOneUndo(mpNameEdit, FOneUndo::Change::Finished);
    label->setBuddy(mpNameEdit);
    row->addWidget(mpNameEdit, 1);
    mpValuesButton = new QToolButton(bar);
    mpValuesButton->setObjectName(QStringLiteral("showValues"));
    mpValuesButton->setText(QStringLiteral("Show values"));
    mpValuesButton->setToolTip(QStringLiteral("Show beside the template what the present values make of it"));
    mpValuesButton->setCheckable(true);
    row->addWidget(mpValuesButton);
    return bar;
}

QWidget* FGenIntCommandFileEditor::makeTexts() {
    auto* texts = new QWidget(this);
    texts->setObjectName(QStringLiteral("AttributeRow"));
    texts->setProperty("last", true);
    auto* row = new QHBoxLayout(texts);
    constexpr int margin = 4;
    row->setContentsMargins(margin, margin, margin, margin);
    auto* splitter = new QSplitter(texts);
    splitter->setObjectName(QStringLiteral("templateTexts"));
    splitter->setChildrenCollapsible(false);
    mpWritten = new FWrittenTextView(
        *mpEdit, [this] { return writtenText(); }, splitter);
    splitter->addWidget(mpEdit);
    splitter->addWidget(mpWritten);
    row->addWidget(splitter);
    return texts;
}

void FGenIntCommandFileEditor::listen() {
    connect(mpModeButton, &QToolButton::clicked, this, &FGenIntCommandFileEditor::changeMode);
    connect(mpNameEdit, &QLineEdit::editingFinished, this, &FGenIntCommandFileEditor::fileNameChanged);
    connect(mpValuesButton, &QToolButton::toggled, mpWritten, &QWidget::setVisible);
    connect(mpEdit, &FGenIntCommandFileEdit::gotFocus, this, &FGenIntCommandFileEditor::gotFocus);
    connect(mpEdit, &FGenIntCommandFileEdit::tagClicked, this, &FGenIntCommandFileEditor::showEntry);
    connect(mpBuffer, &FEditBuffer::aboutToFill, this, [this](int length) {
        mpEdit->clearBlockUserData();
        mpEdit->highlighter().prepareFor(length);
    });
    connect(mpBuffer, &FEditBuffer::refreshed, this, [this] {
        mpEdit->highlighter().followDefinition();
        mpEdit->highlighter().colourShown();
    });
    connect(mpBuffer, &FEditBuffer::written, this, &FGenIntCommandFileEditor::markConfiguration);
    connect(mpReports, &FTemplateReports::placeWanted, this, &FGenIntCommandFileEditor::goTo);
    connect(mpReports, &FTemplateReports::correctionWanted, this, &FGenIntCommandFileEditor::correct);
    mpProblems = FProblemWatch::get();
    connect(mpProblems.get(), &FProblemWatch::checked, this, &FGenIntCommandFileEditor::showProblems);
    const FChanges* changes = FChanges::instance();
    connect(changes, &FChanges::stepDone, this, &FGenIntCommandFileEditor::modelChanged);
    connect(changes, &FChanges::stepUndone, this, &FGenIntCommandFileEditor::modelChanged);
    connect(changes, &FChanges::stepRedone, this, &FGenIntCommandFileEditor::modelChanged);
    connect(changes, &FChanges::projectOpened, this, &FGenIntCommandFileEditor::modelChanged);
}

void FGenIntCommandFileEditor::setCommandFile(const FExpr<FGenIntCommandFile>& file) {
    mpBuffer->commitEdit();
    mCommandFile = file;
    mpBuffer->setFile(FExpr<FGenIntFile>(file));
    refresh();
}

QList<FConnectorInterface*> FGenIntCommandFileEditor::getSoftwareConnectors() const {
    QList<FConnectorInterface*> showing;
    for (FConnectorInterface* connector : FConnectorInterface::getConnectors()) {
        if (mComputation && connector->containsComputation(FExpr<FExternComputation>(mComputation))) {
            showing.append(connector);
        }
    }
    return showing;
}

FConfigurationCustom* FGenIntCommandFileEditor::configuration() const {
    if (mComputation) {
        return mComputation->getConfiguration().ptr();
    }
    const FDefinitionGenInt* definition = mpEdit->getDefinition();
    for (FManaged* object : FObjectManager::instance()->getManaged(FGenIntComputation::null())) {
        const auto* candidate = dynamic_cast<const FGenIntComputation*>(object);
        if (definition && candidate && candidate->definition() == definition) {
            return candidate->getConfiguration().ptr();
        }
    }
    return nullptr;
}

bool FGenIntCommandFileEditor::isWriteModeActivated() const {
    return mpModeButton && mpModeButton->isChecked();
}

// ---- text ----

void FGenIntCommandFileEditor::refresh() {
    mpModeButton->setToolTip(isWriteModeActivated() ? QStringLiteral("Enter assisted mode")
                                                    : QStringLiteral("Enter plain mode"));
    if (isVisible()) {
        mpBuffer->fill();
    }
    mpBuffer->refresh();
    showName();
    modelChanged();
}

void FGenIntCommandFileEditor::changeMode() {
    refresh();
    mpEdit->highlighter().recolour();
}

void FGenIntCommandFileEditor::showEvent(QShowEvent* event) {
    mpBuffer->fill();
    modelChanged();
    showProblems();
    QFrame::showEvent(event);
}

void FGenIntCommandFileEditor::startTextAltering() {
    mpBuffer->commitEdit();
}

void FGenIntCommandFileEditor::setAlteredText() {
    if (mCommandFile) {
        FUserStep step(QStringLiteral("text altered"));
        mpBuffer->write();
    }
}

void FGenIntCommandFileEditor::markConfiguration() {
    if (const FConfigurationCustom* values = configuration()) {
        values->setOutOfDate(true);
    }
}

void FGenIntCommandFileEditor::showName() {
    const QString name = mCommandFile ? mCommandFile->getFileName() : QString();
    if (name != mpNameEdit->text()) {
        mpNameEdit->setText(name);
    }
}

void FGenIntCommandFileEditor::fileNameChanged() {
    mpNameEdit->setModified(false);
    if (mCommandFile && mpNameEdit->text() != mCommandFile->getFileName()) {
        FUserStep step(QStringLiteral("set file name"));
        mCommandFile->setFileName(mpNameEdit->text());
    }
}

// ---- what belongs to the text ----

void FGenIntCommandFileEditor::modelChanged() {
    showName();
    if (isVisible()) {
        mpEdit->highlighter().followDefinition();
        mpWritten->refreshSoon();
    }
}

// A note says what is so, and not what should be different.
void FGenIntCommandFileEditor::showProblems() {
    if (!isVisible()) {
        return;
    }
    FSetUpCheck::Problems own =
        mCommandFile ? mpProblems->problemsOf(mCommandFile->getName()) : FSetUpCheck::Problems();
    const auto isNote = [](const FSetUpProblem& problem) { return problem.severity == FSetUpProblem::Severity::Note; };
    own.erase(std::remove_if(own.begin(), own.end(), isNote), own.end());
    mpReports->show(own, notices());
}

QStringList FGenIntCommandFileEditor::notices() const {
    const QString text = mCommandFile ? mCommandFile->getPlainContent() : QString();
    if (mpBuffer->isCut()) {
        return {QStringLiteral("Line %1 has more than %L2 characters: the text is shown in pieces, and can't be edited "
                               "here. Edit the sample file, and take it over again.")
                    .arg(FLongLines::first(text, FLongLines::longest))
                    .arg(FLongLines::longest)};
    }
    const int line = FLongLines::first(text, FTemplateLine::longest);
    return line == 0 ? QStringList()
                     : QStringList(QStringLiteral("Line %1 has more than %L2 characters: it has no colours, and no "
                                                  "numbers are offered in it.")
                                       .arg(line)
                                       .arg(FTemplateLine::longest));
}

void FGenIntCommandFileEditor::correct(const QString& wrong, const QString& right) {
    if (mCommandFile) {
        FUserStep step(QStringLiteral("correct tag"));
        mCommandFile->updateFile(wrong, right);
    }
}

void FGenIntCommandFileEditor::showEntry(const QString& name) {
    FConfigurationCustom* values = configuration();
    const FDefinitionGenInt* definition = mpEdit->getDefinition();
    if (!mpNavigator || !values || !definition) {
        return;
    }
    const FValueTable table(*values, *definition, FValueTable::Use::Export);
    const int row = table.getKeys().find(name);
    if (const FEntry* entry = row == FTemplateKeys::notFound ? nullptr : table.entryOf(row)) {
        mpNavigator->showEntry(values, entry->getFullName());
    }
}

FWrittenText FGenIntCommandFileEditor::writtenText() const {
    const FConfigurationCustom* values = configuration();
    const FDefinitionGenInt* definition = mpEdit->getDefinition();
    const bool isThere = mCommandFile && values && definition;
    return isThere ? FWrittenText::of(*mCommandFile.ptr(), *values, *definition) : FWrittenText();
}

// ---- page ----

void FGenIntCommandFileEditor::goTo(int line, int column) {
    mpBuffer->fill();
    if (line > 0 && mpBuffer->isCut()) {
        const int position = FDocumentLineEnd::positionAt(mCommandFile->getPlainContent(), line, column);
        mpEdit->goTo(mpBuffer->longLines().shownAt(position));
    } else if (line > 0) {
        mpEdit->goTo(line, column);
    }
    setFocusToEditor();
}

void FGenIntCommandFileEditor::letGo() {
    mpBuffer->letGo();
    setCommandFile({});
    setComputation({});
    mpNavigator = nullptr;
    FChanges::instance()->disconnect(this);
}

void FGenIntCommandFileEditor::setFocusToEditor() {
    mpEdit->setFocus(Qt::OtherFocusReason);
}

void FGenIntCommandFileEditor::focusInEvent(QFocusEvent* event) {
    QFrame::focusInEvent(event);
    emit gotFocus();
}

void FGenIntCommandFileEditor::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && mpEdit) {
        mpEdit->highlighter().takeColours();
    }
}
