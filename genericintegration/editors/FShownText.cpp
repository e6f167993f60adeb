#include "genericintegration/editors/FShownText.h"

#include "genericintegration/marking/FLineEnds.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace {

/** Characters above which filling the widget anew is faster than editing its text. */
constexpr int mostInserted = 1'000'000;

/** Where a cursor is, by lines: what is the same after a line has become another one. */
struct FCaret {
    explicit FCaret(const QTextCursor& cursor)
        : position(cursor.position()), line(cursor.blockNumber()), column(cursor.positionInBlock()) {}

    void restoreIn(QPlainTextEdit& edit) const {
        const QTextDocument& document = *edit.document();
        const QTextBlock block = document.findBlockByNumber(std::min(line, document.blockCount() - 1));
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + std::min(column, block.length() - 1));
        edit.setTextCursor(cursor);
    }

    int position;
    int line;
    int column;
};

}  // namespace

void FShownText::change(QPlainTextEdit& edit, const QString& text, const std::function<void(int length)>& fills) {
    QTextDocument& document = *edit.document();
    const bool isNew = document.isEmpty();
    const auto change = isNew ? FTextReplacement{0, 0, text} : FLineEnds::changeOfDocument(document.toRawText(), text);
    const FCaret caret(edit.textCursor());
    const int column = edit.horizontalScrollBar()->value();
    const int line = edit.verticalScrollBar()->value();
    if (isNew || change.inserted.size() > mostInserted) {
        if (fills) {
            fills(text.size());
        }
        edit.setPlainText(text);
        caret.restoreIn(edit);
    } else if (!change.isEmpty()) {
        QTextCursor cursor(&document);
        cursor.setPosition(change.position);
        cursor.setPosition(change.position + change.removed, QTextCursor::KeepAnchor);
        cursor.insertText(change.inserted);
        if (change.position < caret.position && caret.position < change.position + change.removed) {
            caret.restoreIn(edit);
        }
    }
    edit.horizontalScrollBar()->setValue(column);
    edit.verticalScrollBar()->setValue(line);
}
