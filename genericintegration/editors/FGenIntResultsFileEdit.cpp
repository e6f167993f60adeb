#include "genericintegration/editors/FGenIntResultsFileEdit.h"

#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/editors/FSamplePointing.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

FGenIntResultsFileEdit::FGenIntResultsFileEdit(FGenIntResultsFileEditor* editor)
    : FEditor(3, true, editor), mEditor(editor) {
    setObjectName(QStringLiteral("sampleText"));
    setAccessibleName(QStringLiteral("Sample of the output file"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setPlaceholderText(QStringLiteral("This template has no sample of an output file"));
}

void FGenIntResultsFileEdit::setFramed(const std::vector<FTextRange>& places) {
    QList<QTextEdit::ExtraSelection> selections;
    for (const FTextRange& place : places) {
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(document());
        selection.cursor.setPosition(place.begin);
        selection.cursor.setPosition(place.end(), QTextCursor::KeepAnchor);
        selection.format.setFontUnderline(true);
        selections.append(selection);
    }
    setExtraSelections(selections);
}

void FGenIntResultsFileEdit::show(FTextRange range, int position) {
    QTextCursor cursor(document());
    cursor.setPosition(range.begin);
    QRect place = cursorRect(cursor);
    cursor.setPosition(range.end());
    place |= cursorRect(cursor);
    const QRect view = viewport()->rect();
    if (!view.contains(place)) {
        const bool isLineInView = view.top() <= place.top() && place.bottom() <= view.bottom();
        horizontalScrollBar()->setValue(0);
        setTextCursor(cursor);
        if (!isLineInView) {
            centerCursor();
        }
    }
    // What the user points at stays under the pointer, wherever the anchor is.
    const int left = horizontalScrollBar()->value();
    const int top = verticalScrollBar()->value();
    cursor.setPosition(position);
    setTextCursor(cursor);
    horizontalScrollBar()->setValue(left);
    verticalScrollBar()->setValue(top);
}

void FGenIntResultsFileEdit::focusInEvent(QFocusEvent* event) {
    emit mEditor->gotFocus();
    FEditor::focusInEvent(event);
}

int FGenIntResultsFileEdit::characterAt(const QPoint& point) const {
    const QTextCursor cursor = cursorForPosition(point);
    const bool isLeft = point.x() < cursorRect(cursor).left() && !cursor.atBlockStart();
    return cursor.position() - (isLeft ? 1 : 0);
}

void FGenIntResultsFileEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu(event->pos());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("sampleMenu"));
    const int position =
        event->reason() == QContextMenuEvent::Mouse ? characterAt(event->pos()) : textCursor().selectionStart();
    mEditor->pointing().fillMenu(*menu, position);
    menu->popup(event->globalPos());
}

void FGenIntResultsFileEdit::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !mEditor->pointing().readNumberAt(characterAt(event->pos()))) {
        FEditor::mouseDoubleClickEvent(event);
    }
}

void FGenIntResultsFileEdit::keyPressEvent(QKeyEvent* event) {
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !mEditor->pointing().readNumberAt(textCursor().selectionStart())) {
        FEditor::keyPressEvent(event);
    }
}

QRect FGenIntResultsFileEdit::rectOf(const QTextCursor& selection) const {
    QTextCursor end(document());
    end.setPosition(selection.selectionStart());
    const QRect first = cursorRect(end);
    end.setPosition(selection.selectionEnd());
    const QRect last = cursorRect(end);
    return {first.topLeft() - QPoint(1, 0), QPoint(last.right() + 1, first.bottom())};
}

FTextRange FGenIntResultsFileEdit::inView() const {
    const int begin = firstVisibleBlock().position();
    return {begin, cursorForPosition(viewport()->rect().bottomRight()).position() - begin};
}

void FGenIntResultsFileEdit::paintEvent(QPaintEvent* event) {
    FEditor::paintEvent(event);
    QPainter painter(viewport());
    painter.setPen(QPen(FStateColor::of(FStateColor::State::Warning), 2));
    const FTextRange view = inView();
    for (const QTextEdit::ExtraSelection& selection : extraSelections()) {
        if (selection.cursor.selectionEnd() >= view.begin && selection.cursor.selectionStart() <= view.end()) {
            painter.drawRect(rectOf(selection.cursor));
        }
    }
}
