#include "genericintegration/editors/FGenIntCommandFileEdit.h"

#include "genericintegration/editors/FEntryMenu.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "genericintegration/editors/FGenIntCommandFileLineEdit.h"
#include "genericintegration/editors/FGenIntCommandFileSyntaxHighlighter.h"
#include "genericintegration/editors/FTemplateButtons.h"
#include "genericintegration/marking/FEntryNameProposal.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FModel.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FOneUndo.h"
#include "host/gui/text/FLineNumberDisplay.h"
#include "host/gui/text/FSearchDialog.h"

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>
#include <QTextBlock>

#include <algorithm>

namespace {

constexpr int gutterDigits = 3;

/** The part of a name that can be changed: of a reference to a generated file, what is behind the group. */
QString lastPart(const QString& name) {
    return name.mid(name.lastIndexOf(u'|') + 1);
}

}  // namespace

FGenIntCommandFileEdit::FGenIntCommandFileEdit(FGenIntCommandFileEditor* editor, QWidget* parent)
    : FEditor(gutterDigits, true, parent),
      mpEditor(editor),
      mpButtons(new FTemplateButtons(*this, [this] { return isAssisted() && !mHasMenu && !mpNameEdit->isVisible(); })),
      mpNameEdit(new FGenIntCommandFileLineEdit(*this)) {
    setObjectName(QStringLiteral("templateText"));
    setAccessibleName(QStringLiteral("Text of the input template"));
    setAttribute(Qt::WA_Hover);
    viewport()->setMouseTracking(true);
    lineNumberDisplay()->installEventFilter(this);
    createHighlighter();
    connect(this, &QPlainTextEdit::textChanged, this, &FGenIntCommandFileEdit::textAltered);
    connect(mpButtons, &FTemplateButtons::addClicked, this, &FGenIntCommandFileEdit::addEntryViaButton);
    connect(mpButtons, &FTemplateButtons::editClicked, this, &FGenIntCommandFileEdit::editEntry);
}

FGenIntCommandFileEdit::~FGenIntCommandFileEdit() {
    // No slot is called any more; whoever waits for the end of this object still learns of it.
    blockSignals(true);
    delete mpSearchDialog;
    delete mpHighlighter;
}

FDefinitionGenInt* FGenIntCommandFileEdit::getDefinition() const {
    const FExpr<FGenIntFile> file(mpEditor ? mpEditor->getCommandFile() : FExpr<FGenIntCommandFile>());
    if (!file) {
        return nullptr;
    }
    for (FManaged* entity : FModel::instance()->getEntities(FDefinitionGenInt::null())) {
        auto* definition = dynamic_cast<FDefinitionGenInt*>(entity);
        if (definition && definition->getCommandFiles().contains(file)) {
            return definition;
        }
    }
    return nullptr;
}

std::optional<FCommandFileSteps> FGenIntCommandFileEdit::steps() const {
    FDefinitionGenInt* definition = isReadOnly() ? nullptr : getDefinition();
    return definition ? std::optional(FCommandFileSteps(*definition, mpEditor->buffer())) : std::nullopt;
}

FEntryDef* FGenIntCommandFileEdit::getCurrentEntry() const {
    const std::optional<FCommandFileSteps> possible = steps();
    return possible && !mpButtons->currentName().isEmpty() ? possible->entryOf(mpButtons->currentName()) : nullptr;
}

bool FGenIntCommandFileEdit::isAssisted() const {
    return mpEditor && !mpEditor->isWriteModeActivated() && !isReadOnly();
}

std::pair<int, int> FGenIntCommandFileEdit::shownRange() const {
    const std::vector<ShownBlock> shown = shownBlocks(viewport()->rect());
    return shown.empty() ? std::pair(0, 0) : std::pair(shown.front().number, shown.back().number);
}

void FGenIntCommandFileEdit::createHighlighter() {
    delete mpHighlighter;
    mpHighlighter = new FGenIntCommandFileSyntaxHighlighter(*this);
    connect(mpHighlighter, &FGenIntCommandFileSyntaxHighlighter::passed, mpButtons, &FTemplateButtons::updateSoon);
}

void FGenIntCommandFileEdit::clearBlockUserData() {
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
        block.setUserData(nullptr);
    }
    mpButtons->forgetPlace();
}

// ---- what is under the mouse ----

QString FGenIntCommandFileEdit::tagAt(const QTextCursor& place) const {
    const std::optional<FTemplateOffer> offer = FTemplateOffer::at(place, *mpHighlighter);
    return offer && !offer->isNumber ? offer->name : QString();
}

QTextCursor FGenIntCommandFileEdit::currentTag() const {
    const std::optional<FTemplateOffer> offer = mpButtons->current();
    return offer && !offer->isNumber ? offer->replaced : QTextCursor();
}

bool FGenIntCommandFileEdit::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::HoverMove:
        case QEvent::HoverEnter:
            mpButtons->followMouse(viewport()->mapFrom(this, static_cast<QHoverEvent*>(event)->pos()));
            break;
        case QEvent::HoverLeave:
        case QEvent::Leave:
            mpButtons->forgetMouse();
            break;
        case QEvent::ShortcutOverride: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
                return false;  // left to the window, which undoes steps of the project
            }
            break;
        }
        case QEvent::Wheel:
            return viewportEvent(event);  // from a button, over which the base doesn't scroll
        default:
            break;
    }
    return FEditor::event(event);
}

// The base would insert the address of a file; what to do with it is known to what is around the text.
void FGenIntCommandFileEdit::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) {
        event->ignore();
    } else {
        FEditor::dragEnterEvent(event);
    }
}

// The base would make a document of the text first, which takes as long again.
void FGenIntCommandFileEdit::insertFromMimeData(const QMimeData* source) {
    if (mpEditor && !isReadOnly() && source->hasText()) {
        const QString text = source->text();
        mpHighlighter->prepareFor(document()->characterCount() + text.size());
        mpEditor->buffer().insert(textCursor(), text);
        ensureCursorVisible();
    } else {
        FEditor::insertFromMimeData(source);
    }
}

void FGenIntCommandFileEdit::mouseMoveEvent(QMouseEvent* event) {
    FEditor::mouseMoveEvent(event);
    mpButtons->followMouse(event->pos());
}

void FGenIntCommandFileEdit::mouseReleaseEvent(QMouseEvent* event) {
    FEditor::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && !textCursor().hasSelection()) {
        const QString name = tagAt(cursorForPosition(event->pos()));
        if (!name.isEmpty()) {
            emit tagClicked(name);
        }
    }
}

void FGenIntCommandFileEdit::scrollContentsBy(int dx, int dy) {
    FEditor::scrollContentsBy(dx, dy);
    mpButtons->updateSoon();
}

void FGenIntCommandFileEdit::resizeEvent(QResizeEvent* event) {
    FEditor::resizeEvent(event);
    mpButtons->findMouse();
}

// ---- entries ----

void FGenIntCommandFileEdit::addEntryViaButton() {
    mpButtons->hide();
    const std::optional<FTemplateOffer> offer = mpButtons->current();
    std::optional<FCommandFileSteps> possible = steps();
    if (possible && offer && offer->isNumber) {
        possible->create(offer->name, offer->value, offer->replaced);
    }
}

void FGenIntCommandFileEdit::addEntryViaContextMenu() {
    const QTextCursor cursor = textCursor();
    if (std::optional<FCommandFileSteps> possible = steps()) {
        const FEntryNameProposal proposal(cursor.block().text(), cursor.selectedText());
        possible->create(proposal.name, proposal.value, cursor);
    }
}

void FGenIntCommandFileEdit::insertEntry() {
    const auto* action = qobject_cast<QAction*>(sender());
    std::optional<FCommandFileSteps> possible = steps();
    if (action && possible) {
        possible->insert(action->data().toString(), textCursor());
    }
}

void FGenIntCommandFileEdit::useOffer() {
    const std::optional<FTemplateOffer> offer =
        isAssisted() ? FTemplateOffer::at(textCursor(), *mpHighlighter) : std::nullopt;
    if (!offer) {
        return;
    }
    mpButtons->setCurrent(*offer);
    if (offer->isNumber) {
        addEntryViaButton();
    } else {
        editEntry();
    }
}

void FGenIntCommandFileEdit::editEntry() {
    const FDefinitionGenInt* definition = getDefinition();
    if (!definition) {
        return;
    }
    emit tagClicked(mpButtons->currentName());
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("entryMenu"));
    // The field gets the focus after the menu has given it back.
    QAction* rename = menu.addAction(FIcons::get(QStringLiteral("edit-rename")), QStringLiteral("Rename"));
    rename->setEnabled(getCurrentEntry());
    connect(rename, &QAction::triggered, this, &FGenIntCommandFileEdit::renameEntry, Qt::QueuedConnection);
    menu.addAction(FIcons::get(QStringLiteral("edit-delete")), QStringLiteral("Remove"), this,
                   &FGenIntCommandFileEdit::removeEntry);
    QMenu* replace = menu.addMenu(FIcons::get(QStringLiteral("view-refresh")), QStringLiteral("Replace"));
    FEntryMenu::fill(*replace, *definition, [this](QAction* action) {
        connect(action, &QAction::triggered, this, &FGenIntCommandFileEdit::replaceEntry);
    });
    menu.addAction(FIcons::get(QStringLiteral("edit-clear")), QStringLiteral("Delete (from all files)"), this,
                   &FGenIntCommandFileEdit::deleteEntry);
    mHasMenu = true;
    mpButtons->hide();
    const QPointer<FGenIntCommandFileEdit> self(this);
    menu.exec(mpButtons->isAtMouse() ? QCursor::pos() : mapToGlobal(placeOfTag()));
    if (self) {
        mHasMenu = false;
        mpButtons->updateSoon();
    }
}

// At the mouse, which has chosen it from the menu.
void FGenIntCommandFileEdit::renameEntry() {
    if (mpButtons->currentName().isEmpty()) {
        return;
    }
    const QPoint mouse = mapFromGlobal(QCursor::pos());
    const bool isAtMouse = mpButtons->isAtMouse() && rect().contains(mouse);
    mpNameEdit->start(lastPart(mpButtons->currentName()), isAtMouse ? mouse : placeOfTag());
    mpButtons->hide();
}

QPoint FGenIntCommandFileEdit::placeOfTag() const {
    const std::optional<FTemplateOffer> offer = mpButtons->current();
    return offer ? mpButtons->rectOf(*offer).topLeft() : viewport()->mapTo(this, cursorRect().topLeft());
}

void FGenIntCommandFileEdit::entryNameChanged() {
    const QString name = lastPart(mpNameEdit->text());
    mpNameEdit->hide();
    FEntryDef* entry = getCurrentEntry();
    if (entry && !name.isEmpty()) {
        mpButtons->forgetCurrent();
        steps()->rename(*entry, name);
    }
}

void FGenIntCommandFileEdit::removeEntry() {
    if (std::optional<FCommandFileSteps> possible = steps()) {
        possible->remove(getCurrentEntry(), currentTag());
    }
}

void FGenIntCommandFileEdit::replaceEntry() {
    const auto* action = qobject_cast<QAction*>(sender());
    std::optional<FCommandFileSteps> possible = steps();
    if (action && possible) {
        possible->replace(getCurrentEntry(), currentTag(), action->data().toString());
    }
}

void FGenIntCommandFileEdit::deleteEntry() {
    if (FEntryDef* entry = getCurrentEntry()) {
        steps()->destroy(*entry);
    } else {
        removeEntry();
    }
}

void FGenIntCommandFileEdit::textAltered() {
    if (mpEditor) {
        mpEditor->buffer().touch();
    }
}

void FGenIntCommandFileEdit::forceWindowsLineEndings(bool force) {
    const FExpr<FGenIntCommandFile> file = mpEditor ? mpEditor->getCommandFile() : FExpr<FGenIntCommandFile>();
    if (file) {
        FUserStep step(QStringLiteral("set force Windows line endings"));
        file->setForceWindowsLineEndings(force);
    }
}

void FGenIntCommandFileEdit::toggleLineNumbers() {
    setLineNumbersShown(!areLineNumbersShown());
}

// ---- search ----

void FGenIntCommandFileEdit::startSearch(bool replace) {
    if (!mpSearchDialog) {
        mpSearchDialog = new FSearchDialog(*this);
        connect(mpSearchDialog, &FSearchDialog::highlightingRequested, this, &FGenIntCommandFileEdit::highlightSearch);
        connect(mpSearchDialog, &FSearchDialog::resetHighlighting, this, &FGenIntCommandFileEdit::resetHighlight);
    }
    if (replace) {
        mpSearchDialog->setReplacing(true);
    }
    mpSearchDialog->start();
}

void FGenIntCommandFileEdit::startSearch() {
    startSearch(false);
}

void FGenIntCommandFileEdit::highlightSearch(QRegExp what) {
    mpHighlighter->setSearch(what);
}

void FGenIntCommandFileEdit::resetHighlight() {
    mpHighlighter->setSearch(QRegExp());
    setFocus();
}

// ---- input ----

void FGenIntCommandFileEdit::keyPressEvent(QKeyEvent* event) {
    // Who types looks at the text, and not at the mouse that rests on it.
    if (!event->text().isEmpty()) {
        mpButtons->forgetMouse();
    }
    const bool isControl = event->modifiers() == Qt::ControlModifier;
    if (isControl && event->key() == Qt::Key_F) {
        startSearch(false);
    } else if (isControl && event->key() == Qt::Key_H) {
        startSearch(true);
    } else if (event->modifiers() == Qt::AltModifier && event->key() == Qt::Key_Down) {
        useOffer();
    } else if (event->matches(QKeySequence::Undo)) {
        FUserStep::commitEdits();
        FHistory::instance()->undo();
    } else if (event->matches(QKeySequence::Redo)) {
        FUserStep::commitEdits();
        FHistory::instance()->redo();
    } else {
        if (event->key() == Qt::Key_F3 && mpSearchDialog) {
            mpSearchDialog->refind(event->modifiers().testFlag(Qt::ShiftModifier));
        }
        FEditor::keyPressEvent(event);
    }
}

void FGenIntCommandFileEdit::focusInEvent(QFocusEvent* event) {
    FEditor::focusInEvent(event);
    emit gotFocus();
}

void FGenIntCommandFileEdit::focusOutEvent(QFocusEvent* event) {
    FEditor::focusOutEvent(event);
    if (mpEditor && event->reason() != Qt::PopupFocusReason) {
        mpEditor->buffer().commitEdit();
    }
}

void FGenIntCommandFileEdit::contextMenuEvent(QContextMenuEvent* event) {
    // So that Undo tells what it takes back.
    FUserStep::commitEdits();
    const QPointer<QMenu> menu = createStandardContextMenu(event->pos());
    menu->setObjectName(QStringLiteral("templateMenu"));
    FOneUndo::putInto(*menu, *this, !isReadOnly());
    if (const FDefinitionGenInt* definition = getDefinition()) {
        if (!isReadOnly()) {
            addEntryActions(*menu, *definition);
        }
        addTextActions(*menu);
    }
    menu->exec(event->globalPos());
    delete menu;
}

void FGenIntCommandFileEdit::addEntryActions(QMenu& menu, const FDefinitionGenInt& definition) {
    QAction* first = menu.actions().value(0);
    auto* create = new QAction(QStringLiteral("New Entry"), &menu);
    connect(create, &QAction::triggered, this, &FGenIntCommandFileEdit::addEntryViaContextMenu);
    menu.insertAction(first, create);
    auto* entries = new QMenu(QStringLiteral("Entries"), &menu);
    FEntryMenu::fill(*entries, definition, [this](QAction* action) {
        connect(action, &QAction::triggered, this, &FGenIntCommandFileEdit::insertEntry);
    });
    menu.insertMenu(first, entries);
    menu.insertSeparator(first);
}

void FGenIntCommandFileEdit::addTextActions(QMenu& menu) {
    menu.addSeparator();
    QAction* numbers =
        menu.addAction(QStringLiteral("Show line numbers"), this, &FGenIntCommandFileEdit::toggleLineNumbers);
    numbers->setCheckable(true);
    numbers->setChecked(areLineNumbersShown());
    if (const FExpr<FGenIntCommandFile>& file = mpEditor->getCommandFile()) {
        QAction* force = menu.addAction(QStringLiteral("Force Windows line endings"));
        force->setCheckable(true);
        force->setChecked(file->getForceWindowsLineEndings());
        connect(force, &QAction::triggered, this, &FGenIntCommandFileEdit::forceWindowsLineEndings);
    }
    menu.addSeparator();
    menu.addAction(QStringLiteral("Find"), this, qOverload<>(&FGenIntCommandFileEdit::startSearch));
}

bool FGenIntCommandFileEdit::eventFilter(QObject* watched, QEvent* event) {
    const bool isMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                         event->type() == QEvent::MouseButtonRelease;
    if (watched == lineNumberDisplay() && isMouse && mGutterSelection.handle(*static_cast<QMouseEvent*>(event))) {
        return true;
    }
    return FEditor::eventFilter(watched, event);
}
