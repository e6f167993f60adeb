#include "genericintegration/editors/FGenIntCommandFileEdit.h"

#include "genericintegration/editors/FEntryMenu.h"
#include "genericintegration/editors/FGenIntCommandFileEditEntryButton.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "genericintegration/editors/FGenIntCommandFileEntryData.h"
#include "genericintegration/editors/FGenIntCommandFileLineEdit.h"
#include "genericintegration/editors/FGenIntCommandFileSyntaxHighlighter.h"
#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/marking/FEntryNameProposal.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/core/FBasicType.h"
#include "host/core/FHold.h"
#include "host/core/FModel.h"
#include "host/core/FNumber.h"
#include "host/core/FObjectEditorWgt.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntryDef.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/text/FLineNumberDisplay.h"
#include "host/gui/text/FSearchDialog.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>
#include <QTextBlock>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int gutterDigits = 3;
/** What a button is wider than its icon and its text. */
constexpr int buttonPadding = 11;
constexpr int nameEditPadding = 29;

/** The part of a name that can be changed: of a reference to a generated file, what is behind the group. */
QString lastPart(const QString& name) {
    return name.mid(name.lastIndexOf(u'|') + 1);
}

}  // namespace

FGenIntCommandFileEdit::FGenIntCommandFileEdit(FGenIntCommandFileEditor* editor, QWidget* parent)
    : FEditor(gutterDigits, true, parent),
      mpEditor(editor),
      mpAddEntryButton(
          setUpButton(new QToolButton(this), QStringLiteral("addEntryButton"), QStringLiteral("list-add"))),
      mpEditEntryButton(new FGenIntCommandFileEditEntryButton(this)),
      mpNameEdit(new FGenIntCommandFileLineEdit(*this)) {
    setObjectName(QStringLiteral("templateText"));
    setAccessibleName(QStringLiteral("Text of the input template"));
    setUpButton(mpEditEntryButton, QStringLiteral("editEntryButton"), QStringLiteral("document-edit"));
    mpNameEdit->setFont(font());
    setAttribute(Qt::WA_Hover);
    viewport()->setMouseTracking(true);
    lineNumberDisplay()->installEventFilter(this);
    createHighlighter();
    connect(this, &QPlainTextEdit::textChanged, this, &FGenIntCommandFileEdit::textAltered);
    connect(mpAddEntryButton, &QToolButton::clicked, this, &FGenIntCommandFileEdit::addEntryViaButton);
    connect(mpEditEntryButton, &QToolButton::clicked, this, &FGenIntCommandFileEdit::editEntry);
}

FGenIntCommandFileEdit::~FGenIntCommandFileEdit() {
    // No slot is called any more; whoever waits for the end of this object still learns of it.
    blockSignals(true);
    delete mpSearchDialog;
    delete mpHighlighter;
}

QToolButton* FGenIntCommandFileEdit::setUpButton(QToolButton* button, const QString& id, const QString& icon) {
    button->setObjectName(id);
    button->setAccessibleName(QStringLiteral("Make an entry of this number"));
    button->setIcon(FIcons::get(icon));
    button->setAutoRaise(true);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setFont(font());
    // It covers what it stands for.
    button->setAutoFillBackground(true);
    button->setBackgroundRole(QPalette::Base);
    button->setFocusPolicy(Qt::NoFocus);
    button->hide();
    return button;
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

FEntryDef* FGenIntCommandFileEdit::getCurrentEntry() const {
    const FDefinitionGenInt* definition = getDefinition();
    if (!definition || mCurrentEntryName.isEmpty()) {
        return nullptr;
    }
    if (auto* entry = dynamic_cast<FEntryDef*>(definition->getEntryOfScope(mCurrentEntryName))) {
        return entry;
    }
    // As the writer finds it: case doesn't matter.
    const QStringList paths = definition->getEntryMap().keys();
    FTemplateKeys keys;
    for (const QString& path : paths) {
        keys.append(path, true);
    }
    const int row = keys.find(mCurrentEntryName);
    return row == FTemplateKeys::notFound ? nullptr : dynamic_cast<FEntryDef*>(definition->getEntryOfScope(paths[row]));
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
    connect(mpHighlighter, &FGenIntCommandFileSyntaxHighlighter::passed, &mHover, &FQueuedCall::request);
}

void FGenIntCommandFileEdit::clearBlockUserData() {
    for (QTextBlock block = document()->firstBlock(); block.isValid(); block = block.next()) {
        block.setUserData(nullptr);
    }
    mCurrent = QTextCursor();
}

// ---- what is under the mouse ----

QTextCursor FGenIntCommandFileEdit::selection(const QTextBlock& block, int from, int to) const {
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + from);
    cursor.setPosition(block.position() + to, QTextCursor::KeepAnchor);
    return cursor;
}

// A tag whose name has unusual characters is in fewer lists than the others. Numbers are the last ones in each list.
std::optional<FGenIntCommandFileEdit::Region> FGenIntCommandFileEdit::regionAt(const QTextCursor& place) const {
    const QTextBlock block = place.block();
    FGenIntCommandFileEntryData* offered = mpHighlighter->dataOf(block);
    const int index = offered ? offered->entryIndexAt(place.positionInBlock()) : -1;
    if (index < 0) {
        return std::nullopt;
    }
    const FTemplateRegions& regions = offered->regions;
    const bool isNumber = regions.isPossibleValue(index);
    const int ofValue = index + regions.names.size() - regions.regionStarts.size();
    const QString name = isNumber ? regions.name(ofValue) : FTemplateTags::nameIn(regions.text(index));
    const int start = regions.regionStart(index);
    const int end = regions.regionEnd(index);
    // What is typed in plain mode isn't analysed.
    const bool isThere = block.text().mid(start, end - start) == regions.text(index);
    const bool isWhole =
        isNumber ? start <= regions.valueStart(ofValue) && regions.valueStart(ofValue) < end : !name.isEmpty();
    if (!isThere || !isWhole) {
        return std::nullopt;
    }
    const QTextCursor whole = selection(block, start, end);
    offered->cursor = isNumber ? selection(block, regions.valueStart(ofValue), end) : whole;
    return Region{isNumber, name, regions.text(index), regions.value(index), whole, offered->cursor};
}

QString FGenIntCommandFileEdit::tagAt(const QTextCursor& place) const {
    const std::optional<Region> region = regionAt(place);
    return region && !region->isPossibleValue ? region->name : QString();
}

QTextCursor FGenIntCommandFileEdit::currentTag() const {
    const std::optional<Region> region = mCurrent.isNull() ? std::nullopt : regionAt(mCurrent);
    const bool isThere = region && !region->isPossibleValue && region->name == mCurrentEntryName;
    return isThere ? region->replaced : QTextCursor();
}

QRect FGenIntCommandFileEdit::buttonRect(const Region& region) const {
    QTextCursor start(region.whole);
    start.setPosition(region.whole.selectionStart());
    QTextCursor end(region.whole);
    end.setPosition(region.whole.selectionEnd());
    const QRect first = cursorRect(start);
    const QRect last = cursorRect(end);
    return QRect(QPoint(first.left(), first.top() + 1), QPoint(last.right(), last.bottom() + 1))
        .translated(lineNumberAreaWidth(), 0);
}

void FGenIntCommandFileEdit::followMouse(const QPoint& place) {
    mMouse = place;
    updateHover();
}

void FGenIntCommandFileEdit::updateHover() {
    const bool mayShow = mMouse && isAssisted() && !mHasMenu && !mpNameEdit->isVisible();
    if (!mayShow) {
        hideButtons();
        return;
    }
    const std::optional<Region> region = regionAt(cursorForPosition(*mMouse));
    const QPoint inEdit = viewport()->mapTo(this, *mMouse);
    const int reach = fontMetrics().averageCharWidth();
    if (region && buttonRect(*region).adjusted(-reach, -reach, reach, reach).contains(inEdit)) {
        showButton(*region);
        return;
    }
    const bool isOnButton = (mpAddEntryButton->isVisible() && mpAddEntryButton->geometry().contains(inEdit)) ||
                            (mpEditEntryButton->isVisible() && mpEditEntryButton->geometry().contains(inEdit));
    const std::optional<Region> current =
        isOnButton && !mCurrent.isNull() ? regionAt(mCurrent) : std::optional<Region>();
    if (current) {
        showButton(*current);
    } else {
        hideButtons();
    }
}

void FGenIntCommandFileEdit::showButton(const Region& region) {
    QToolButton* shown = region.isPossibleValue ? mpAddEntryButton : mpEditEntryButton;
    QToolButton* hidden = region.isPossibleValue ? static_cast<QToolButton*>(mpEditEntryButton) : mpAddEntryButton;
    const QRect rect = buttonRect(region);
    shown->setGeometry(rect);
    shown->setFixedWidth(mpEditEntryButton->iconSize().width() + rect.width() + buttonPadding);
    mpAddEntryButton->setText(region.isPossibleValue ? region.text : QString());
    mpEditEntryButton->setEntryName(region.isPossibleValue ? QString() : region.name);
    mCurrentEntryName = region.isPossibleValue ? QString() : region.name;
    mCurrent = region.whole;
    mCurrent.setPosition(region.whole.selectionStart());
    hidden->hide();
    shown->show();
    shown->raise();
}

void FGenIntCommandFileEdit::hideButtons() {
    mpAddEntryButton->hide();
    mpEditEntryButton->hide();
}

bool FGenIntCommandFileEdit::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::HoverMove:
        case QEvent::HoverEnter:
            followMouse(viewport()->mapFrom(this, static_cast<QHoverEvent*>(event)->pos()));
            break;
        case QEvent::HoverLeave:
        case QEvent::Leave:
            mMouse.reset();
            updateHover();
            break;
        case QEvent::ShortcutOverride: {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
                return false;  // left to the window, which undoes steps of the project
            }
            break;
        }
        case QEvent::FontChange:
            mpAddEntryButton->setFont(font());
            mpEditEntryButton->setFont(font());
            mpNameEdit->setFont(font());
            break;
        default:
            break;
    }
    return FEditor::event(event);
}

void FGenIntCommandFileEdit::mouseMoveEvent(QMouseEvent* event) {
    FEditor::mouseMoveEvent(event);
    followMouse(event->pos());
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
    mHover.request();
}

void FGenIntCommandFileEdit::resizeEvent(QResizeEvent* event) {
    FEditor::resizeEvent(event);
    // The text may have moved under the mouse.
    mMouse = mMouse ? std::optional(viewport()->mapFromGlobal(QCursor::pos())) : std::nullopt;
    mHover.request();
}

// ---- entries ----

void FGenIntCommandFileEdit::replaceText(const QTextCursor& cursor, const QString& text) {
    if (mpEditor) {
        mpEditor->buffer().replace(cursor, text);
    }
}

void FGenIntCommandFileEdit::createEntry(const QString& proposal, double value, QTextCursor cursor) {
    FDefinitionGenInt* definition = getDefinition();
    if (!definition || cursor.isNull() || isReadOnly()) {
        return;
    }
    {
        FUserStep step(QStringLiteral("create commandfile entry"));
        const FExprBase number(new FDouble(value));
        if (FEntryDef* entry = FEntryDef::create(FEntryNameProposal::usable(proposal), definition, 1, 1, false, true,
                                                 QString(), number)) {
            replaceText(cursor, FTemplateTags::tagOf(entry->getFullName()));
        }
    }
    FObjectEditorWgt::instance()->reinitialize();
}

void FGenIntCommandFileEdit::addEntryViaButton() {
    hideButtons();
    const std::optional<Region> region = mCurrent.isNull() ? std::nullopt : regionAt(mCurrent);
    if (region && region->isPossibleValue) {
        createEntry(region->name, region->value, region->replaced);
    }
}

void FGenIntCommandFileEdit::addEntryViaContextMenu() {
    const QTextCursor cursor = textCursor();
    const FEntryNameProposal proposal(cursor.block().text(), cursor.selectedText());
    createEntry(proposal.name, proposal.value, cursor);
}

void FGenIntCommandFileEdit::insertEntry() {
    if (const auto* action = qobject_cast<QAction*>(sender())) {
        FUserStep step(QStringLiteral("insert commandfile entry"));
        replaceText(textCursor(), FTemplateTags::tagOf(action->data().toString()));
    }
}

void FGenIntCommandFileEdit::editEntry() {
    const FDefinitionGenInt* definition = getDefinition();
    if (!definition) {
        return;
    }
    emit tagClicked(mCurrentEntryName);
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("entryMenu"));
    // The field gets the focus after the menu has given it back.
    connect(menu.addAction(FIcons::get(QStringLiteral("edit-rename")), QStringLiteral("Rename")), &QAction::triggered,
            this, &FGenIntCommandFileEdit::renameEntry, Qt::QueuedConnection);
    menu.addAction(FIcons::get(QStringLiteral("edit-delete")), QStringLiteral("Remove"), this,
                   &FGenIntCommandFileEdit::removeEntry);
    QMenu* replace = menu.addMenu(FIcons::get(QStringLiteral("view-refresh")), QStringLiteral("Replace"));
    FEntryMenu::fill(*replace, *definition, [this](QAction* action) {
        connect(action, &QAction::triggered, this, &FGenIntCommandFileEdit::replaceEntry);
    });
    menu.addAction(FIcons::get(QStringLiteral("edit-clear")), QStringLiteral("Delete (from all files)"), this,
                   &FGenIntCommandFileEdit::deleteEntry);
    mHasMenu = true;
    hideButtons();
    const QPointer<FGenIntCommandFileEdit> self(this);
    menu.exec(QCursor::pos());
    if (self) {
        mHasMenu = false;
        mHover.request();
    }
}

void FGenIntCommandFileEdit::renameEntry() {
    if (mCurrentEntryName.isEmpty()) {
        return;
    }
    const QString name = lastPart(mCurrentEntryName);
    mpNameEdit->setText(name);
    const QPoint place = viewport()->mapTo(this, mMouse ? *mMouse : cursorRect(mCurrent).topLeft());
    const int width = fontMetrics().horizontalAdvance(name) + nameEditPadding;
    mpNameEdit->setGeometry(std::clamp(place.x(), 0, std::max(0, this->width() - width)), place.y(), width,
                            mpNameEdit->sizeHint().height());
    mpNameEdit->show();
    mpNameEdit->raise();
    mpNameEdit->selectAll();
    mpNameEdit->setFocus();
    hideButtons();
}

void FGenIntCommandFileEdit::entryNameChanged() {
    const QString name = lastPart(mpNameEdit->text());
    mpNameEdit->hide();
    FEntryDef* entry = getCurrentEntry();
    if (!entry || name.isEmpty()) {
        return;
    }
    mCurrentEntryName.clear();
    if (name != entry->getName()) {
        const FWaitCursor busy;  // large templates may have many tags
        const FExpr<FEntryBase> held(entry);
        FUserStep step(QStringLiteral("rename commandfile entry"));
        entry->setName(name);
    }
    FObjectEditorWgt::instance()->reinitialize();
}

void FGenIntCommandFileEdit::removeEntry() {
    const FEntryDef* entry = getCurrentEntry();
    const auto* value = entry ? objectCast<FBasicType>(entry->getDefaultValue().getObject()) : nullptr;
    replaceCurrentTag(QStringLiteral("remove commandfile entry"), value ? value->toString() : QString());
}

void FGenIntCommandFileEdit::replaceEntry() {
    if (const auto* action = qobject_cast<QAction*>(sender())) {
        replaceCurrentTag(QStringLiteral("replace commandfile entry"), FTemplateTags::tagOf(action->data().toString()));
    }
}

// The text is written before the references are counted.
void FGenIntCommandFileEdit::replaceCurrentTag(const QString& label, const QString& text) {
    const FExpr<FEntryBase> entry(getCurrentEntry());
    if (!isReadOnly()) {
        FUserStep step(label);
        const QTextCursor tag = currentTag();
        if (!tag.isNull()) {
            replaceText(tag, text);
        }
        const FDefinitionGenInt* definition = getDefinition();
        if (entry && definition && !definition->commandFileReferencesEntry(entry)) {
            destroyEntry(static_cast<FEntryDef&>(*entry.ptr()));
        }
    }
    FObjectEditorWgt::instance()->reinitialize();
}

void FGenIntCommandFileEdit::deleteEntry() {
    FEntryDef* entry = getCurrentEntry();
    if (!entry) {
        removeEntry();
        return;
    }
    {
        const FWaitCursor busy;
        const FExpr<FEntryBase> held(entry);
        FUserStep step(QStringLiteral("remove commandfile entry"));
        destroyEntry(*entry);
    }
    FObjectEditorWgt::instance()->reinitialize();
}

void FGenIntCommandFileEdit::destroyEntry(FEntryDef& entry) {
    if (FDefinitionGenInt* definition = getDefinition()) {
        definition->findAndRemoveEntry(FExpr<FEntryBase>(&entry));
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
    const bool isControl = event->modifiers() == Qt::ControlModifier;
    if (isControl && event->key() == Qt::Key_F) {
        startSearch(false);
    } else if (isControl && event->key() == Qt::Key_H) {
        startSearch(true);
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
    const FDefinitionGenInt* definition = getDefinition();
    if (!definition || isReadOnly()) {
        FEditor::contextMenuEvent(event);
        return;
    }
    const QPointer<QMenu> menu = createStandardContextMenu(event->pos());
    menu->setObjectName(QStringLiteral("templateMenu"));
    QAction* first = menu->actions().value(0);
    auto* create = new QAction(QStringLiteral("New Entry"), menu);
    connect(create, &QAction::triggered, this, &FGenIntCommandFileEdit::addEntryViaContextMenu);
    menu->insertAction(first, create);
    auto* entries = new QMenu(QStringLiteral("Entries"), menu);
    FEntryMenu::fill(*entries, *definition, [this](QAction* action) {
        connect(action, &QAction::triggered, this, &FGenIntCommandFileEdit::insertEntry);
    });
    menu->insertMenu(first, entries);
    menu->insertSeparator(first);
    menu->addSeparator();
    QAction* numbers =
        menu->addAction(QStringLiteral("Show line numbers"), this, &FGenIntCommandFileEdit::toggleLineNumbers);
    numbers->setCheckable(true);
    numbers->setChecked(areLineNumbersShown());
    if (const FExpr<FGenIntCommandFile>& file = mpEditor->getCommandFile()) {
        QAction* force = menu->addAction(QStringLiteral("Force Windows line endings"));
        force->setCheckable(true);
        force->setChecked(file->getForceWindowsLineEndings());
        connect(force, &QAction::triggered, this, &FGenIntCommandFileEdit::forceWindowsLineEndings);
    }
    menu->addSeparator();
    menu->addAction(QStringLiteral("Find"), this, qOverload<>(&FGenIntCommandFileEdit::startSearch));
    menu->exec(event->globalPos());
    delete menu;
}

bool FGenIntCommandFileEdit::eventFilter(QObject* watched, QEvent* event) {
    const bool isMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                         event->type() == QEvent::MouseButtonRelease;
    if (watched == lineNumberDisplay() && isMouse && selectLines(*static_cast<QMouseEvent*>(event))) {
        return true;
    }
    return FEditor::eventFilter(watched, event);
}

// The gutter is as high as the text, so that the position is that of a line.
bool FGenIntCommandFileEdit::selectLines(const QMouseEvent& event) {
    if (event.type() == QEvent::MouseButtonRelease) {
        mLineSelectActive = false;
        return false;
    }
    const bool isPress = event.type() == QEvent::MouseButtonPress && event.button() == Qt::LeftButton;
    if (!isPress && !mLineSelectActive) {
        return false;
    }
    QTextCursor line = cursorForPosition({0, event.pos().y()});
    line.select(QTextCursor::LineUnderCursor);
    line.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
    if (isPress) {
        mLineSelectActive = true;
        mFirstLine = line;
    }
    QTextCursor selected(document());
    selected.setPosition(std::min(line.selectionStart(), mFirstLine.selectionStart()));
    selected.setPosition(std::max(line.selectionEnd(), mFirstLine.selectionEnd()), QTextCursor::KeepAnchor);
    setTextCursor(selected);
    return true;
}
