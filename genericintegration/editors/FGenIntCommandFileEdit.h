#pragma once

#include "genericintegration/editors/FCommandFileSteps.h"
#include "genericintegration/editors/FGutterSelection.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/gui/text/FEditor.h"

#include <QRegExp>

#include <optional>
#include <utility>

class FEntryDef;
class FGenIntCommandFileEditor;
class FGenIntCommandFileLineEdit;
class FGenIntCommandFileSyntaxHighlighter;
class FSearchDialog;
class FTemplateButtons;
class QMenu;

/**
 * The text of an input template. In assisted mode, a button appears over the number or tag under the mouse: the first
 * makes an entry of the number, the other one opens a menu with what can be done with the tag. Alt+Down does the same
 * at the cursor. Each of these operations is a step of its own, after one for what was typed before.
 */
class FGenIntCommandFileEdit : public FEditor {
    Q_OBJECT

 public:
    /** @param editor  the frame; may be null */
    FGenIntCommandFileEdit(FGenIntCommandFileEditor* editor, QWidget* parent);
    ~FGenIntCommandFileEdit() override;

    /** The definition that has the template; null if there is none. */
    FDefinitionGenInt* getDefinition() const;
    /** The entry of the tag under the mouse; null if there is none. */
    FEntryDef* getCurrentEntry() const;
    bool isAssisted() const;
    /** Numbers of the first and last block in view. */
    std::pair<int, int> shownRange() const;
    FGenIntCommandFileSyntaxHighlighter& highlighter() { return *mpHighlighter; }
    void createHighlighter();
    void clearBlockUserData();
    /** The name in the tag at a position of the text; empty if there is none. */
    QString tagAt(const QTextCursor& place) const;

 public slots:
    void insertEntry();
    void addEntryViaContextMenu();
    void addEntryViaButton();
    void textAltered();
    void editEntry();
    void renameEntry();
    void entryNameChanged();
    void deleteEntry();
    void removeEntry();
    void replaceEntry();
    void startSearch(bool replace);
    void startSearch();
    void toggleLineNumbers();
    void forceWindowsLineEndings(bool force);
    void highlightSearch(QRegExp what);
    void resetHighlight();

 signals:
    /** The user has clicked on a tag. */
    void tagClicked(const QString& name);
    void gotFocus();

 protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    /** What can be done with entries; nothing without a definition, or if the text can't be edited. */
    std::optional<FCommandFileSteps> steps() const;
    /** The tag on which the menu was opened, where it is now; a null cursor if it is gone. */
    QTextCursor currentTag() const;
    QPoint placeOfTag() const;
    /** Does what the button over the number or tag at the cursor does. */
    void useOffer();
    void addEntryActions(QMenu& menu, const FDefinitionGenInt& definition);
    void addTextActions(QMenu& menu);

    FGenIntCommandFileEditor* mpEditor;
    FGenIntCommandFileSyntaxHighlighter* mpHighlighter = nullptr;
    FTemplateButtons* mpButtons;
    FGenIntCommandFileLineEdit* mpNameEdit;
    bool mHasMenu = false;
    FSearchDialog* mpSearchDialog = nullptr;
    FGutterSelection mGutterSelection{*this};
};
