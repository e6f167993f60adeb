#pragma once

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/text/FEditor.h"

#include <QRegExp>

#include <optional>
#include <utility>

class FEntryDef;
class FGenIntCommandFileEditEntryButton;
class FGenIntCommandFileEditor;
class FGenIntCommandFileLineEdit;
class FGenIntCommandFileSyntaxHighlighter;
class FSearchDialog;
class QToolButton;

/**
 * The text of an input template. In assisted mode, a button appears over the number or tag under the mouse: the first
 * makes an entry of the number, the other one opens a menu with what can be done with the tag. Each of these operations
 * is a step of its own, after one for what was typed before.
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
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;

 private:
    /** What is offered at a place. */
    struct Region {
        bool isPossibleValue;
        QString name;
        QString text;
        double value;
        QTextCursor whole;     //!< selects the region
        QTextCursor replaced;  //!< selects what an operation replaces
    };

    QToolButton* setUpButton(QToolButton* button, const QString& id, const QString& icon);
    QTextCursor selection(const QTextBlock& block, int from, int to) const;
    std::optional<Region> regionAt(const QTextCursor& place) const;
    /** The tag on which the menu was opened, where it is now; a null cursor if it is gone. */
    QTextCursor currentTag() const;
    QRect buttonRect(const Region& region) const;
    void followMouse(const QPoint& place);
    /** Places the button for what is under the mouse, or hides both. */
    void updateHover();
    void showButton(const Region& region);
    void hideButtons();

    void createEntry(const QString& proposal, double value, QTextCursor cursor);
    void replaceCurrentTag(const QString& label, const QString& text);
    /** Deletes an entry, within a step of the caller. */
    void destroyEntry(FEntryDef& entry);
    void replaceText(const QTextCursor& cursor, const QString& text);
    bool selectLines(const QMouseEvent& event);

    FGenIntCommandFileEditor* mpEditor;
    FGenIntCommandFileSyntaxHighlighter* mpHighlighter = nullptr;
    QToolButton* mpAddEntryButton;
    FGenIntCommandFileEditEntryButton* mpEditEntryButton;
    FGenIntCommandFileLineEdit* mpNameEdit;
    bool mHasMenu = false;
    FSearchDialog* mpSearchDialog = nullptr;
    bool mLineSelectActive = false;
    QTextCursor mFirstLine;        //!< where a selection in the gutter has begun
    std::optional<QPoint> mMouse;  //!< in the viewport; nothing while the mouse is elsewhere
    QTextCursor mCurrent;          //!< at the start of the region with the button
    QString mCurrentEntryName;
    FQueuedCall mHover{[this] { updateHover(); }};
};
