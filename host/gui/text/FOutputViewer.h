#pragma once

#include "host/core/FExport.h"
#include "host/gui/text/FOutputText.h"

#include <QAbstractScrollArea>
#include <QTimer>

#include <utility>

struct FShownLine;

/**
 * Shows the text of an output file, which isn't edited and may have any size. Only visible lines are decoded. Line
 * numbers appear as the index arrives, which is made in the event loop. While the viewer is visible, it follows the
 * file: what a program appends is shown, and with `setTailing` the end stays in view.
 *
 * Arrows, Page Up and Page Down scroll; with Shift they select, as dragging does. Ctrl+C copies.
 */
class MERIX_EXPORT FOutputViewer : public QAbstractScrollArea {
    Q_OBJECT

 public:
    explicit FOutputViewer(QWidget* parent);

    /** Returns the reason if the file can't be read, else an empty text. */
    QString open(const QString& path);
    const FOutputText& text() const { return mText; }
    /** The part that is selected, as offsets; empty if nothing is. */
    std::pair<qint64, qint64> getSelection() const { return std::minmax(mAnchor, mCaret); }
    QString getSelectedText() const;
    /** What is in view, line by line. */
    QString getVisibleText() const;
    /** Number of the first line in view, from 1; 0 while it isn't known. */
    qint64 getTopLine() const { return mText.lineAt(mTop) + 1; }
    bool isTailing() const { return mIsTailing; }

    /**
     * Marks a place, and scrolls to it as soon as the index reaches it. Line and column count from 1; column 0 marks
     * the line as a whole, line 0 nothing.
     */
    void showPlace(qint64 line, qint64 column, qint64 length, bool isSuspicious);
    /** Selects a part, and scrolls to it. */
    void select(qint64 begin, qint64 end);
    void setTailing(bool isTailing);
    /** Looks now whether the file has changed. */
    void follow();

 signals:
    /** The index, the size of the file, or what is in view has changed. */
    void stateChanged();
    void tailingChanged(bool isTailing);

 protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool event(QEvent* event) override;

 private:
    struct Mark {
        qint64 begin = 0;
        qint64 end = 0;
        bool isSuspicious = false;
    };
    struct Wanted {
        qint64 line = 0;
        qint64 column = 0;
        qint64 length = 0;
        bool isSuspicious = false;
    };

    // ---- geometry ----
    int lineHeight() const;
    int cellWidth() const;
    int gutterWidth() const;
    int visibleLines() const;
    int visibleCells() const;
    /** The cells of the line that starts at an offset from the left edge of the view on, with their true offsets. */
    FShownLine shownLine(qint64 begin) const;
    int xOf(const FShownLine& line, int cell) const;
    qint64 offsetAt(const QPoint& point) const;
    /** Start of the last page. */
    qint64 lastTop() const;

    // ---- scrolling ----
    void setTop(qint64 top);
    void scrollLines(qint64 lines);
    void updateBars();
    /** Scrolls so that the offset is in view. */
    void reveal(qint64 offset);

    void indexOn();
    void showWanted();
    void scrollByKey(QKeyEvent& event);
    void selectByKey(QKeyEvent& event);
    void copy() const;
    void selectAll();
    void paintLine(QPainter& painter, qint64 begin, qint64 end, int y) const;
    void paintRange(QPainter& painter, const FShownLine& line, qint64 begin, qint64 end, qint64 lineEnd, int y,
                    const QColor& color, bool isFramed) const;

    FOutputText mText;
    qint64 mTop = 0;  //!< start of the first line in view
    qint64 mAnchor = 0;
    qint64 mCaret = 0;
    Mark mMark;
    Wanted mWanted;
    bool mIsTailing = false;
    bool mIsUpdatingBars = false;
    qint64 mBarUnit = 0;  //!< bytes for a step of the vertical bar; 0 for a line
    int mWidest = 0;      //!< cells of the widest line that was in view
    int mWheelRest = 0;
    QTimer mIndexing;
    QTimer mFollowing;
    QTimer mDragging;
};
