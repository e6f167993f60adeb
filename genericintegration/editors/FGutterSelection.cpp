#include "genericintegration/editors/FGutterSelection.h"

#include <QMouseEvent>
#include <QPlainTextEdit>

#include <algorithm>

// The gutter is as high as the text, so that the position is that of a line.
bool FGutterSelection::handle(const QMouseEvent& event) {
    const bool isPress = event.type() == QEvent::MouseButtonPress && event.button() == Qt::LeftButton;
    const bool isMove = event.type() == QEvent::MouseMove && mIsActive;
    if (event.type() == QEvent::MouseButtonRelease) {
        mIsActive = false;
    }
    if (!isPress && !isMove) {
        return false;
    }
    QTextCursor line = mEdit.cursorForPosition({0, event.pos().y()});
    line.select(QTextCursor::LineUnderCursor);
    line.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor);
    if (isPress) {
        mIsActive = true;
        mFirstLine = line;
    }
    QTextCursor selected(mEdit.document());
    selected.setPosition(std::min(line.selectionStart(), mFirstLine.selectionStart()));
    selected.setPosition(std::max(line.selectionEnd(), mFirstLine.selectionEnd()), QTextCursor::KeepAnchor);
    mEdit.setTextCursor(selected);
    return true;
}
