#pragma once

#include <QTextCursor>

class QMouseEvent;
class QPlainTextEdit;

/** Selects whole lines of a text while the mouse is dragged along its gutter. */
class FGutterSelection {
 public:
    explicit FGutterSelection(QPlainTextEdit& edit) : mEdit(edit) {}

    /** True if the event of the gutter is used up. */
    bool handle(const QMouseEvent& event);

 private:
    QPlainTextEdit& mEdit;
    bool mIsActive = false;
    QTextCursor mFirstLine;
};
