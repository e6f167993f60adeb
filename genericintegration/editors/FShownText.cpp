#include "genericintegration/editors/FShownText.h"

#include "genericintegration/marking/FLineEnds.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace {

/** Whether filling the widget again is faster than editing its text. */
bool isLarge(const std::vector<FTextReplacement>& changes) {
    constexpr int mostInserted = 1'000'000;
    return changes.size() == 1 && changes.front().inserted.size() > mostInserted;
}

void replace(QTextDocument& document, const std::vector<FTextReplacement>& changes) {
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    // From the end, so that the positions stay right.
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
        cursor.setPosition(change->position);
        cursor.setPosition(change->position + change->removed, QTextCursor::KeepAnchor);
        cursor.insertText(change->inserted);
    }
    cursor.endEditBlock();
}

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

    bool isIn(const std::vector<FTextReplacement>& changes) const {
        return std::any_of(changes.begin(), changes.end(), [this](const FTextReplacement& change) {
            return change.position < position && position < change.position + change.removed;
        });
    }

    int position;
    int line;
    int column;
};

}  // namespace

void FShownText::change(QPlainTextEdit& edit, const QString& shown, const QString& text,
                        const std::function<void(int length)>& fills) {
    QTextDocument& document = *edit.document();
    const std::vector<FTextReplacement> changes =
        document.isEmpty() ? std::vector<FTextReplacement>() : FLineEnds::changesOfDocument(shown, text);
    const FCaret caret(edit.textCursor());
    const int column = edit.horizontalScrollBar()->value();
    const int line = edit.verticalScrollBar()->value();
    if (document.isEmpty() || isLarge(changes)) {
        if (fills) {
            fills(text.size());
        }
        edit.setPlainText(text);
        caret.restoreIn(edit);
    } else if (!changes.empty()) {
        replace(document, changes);
        if (caret.isIn(changes)) {
            caret.restoreIn(edit);
        }
    }
    edit.horizontalScrollBar()->setValue(column);
    edit.verticalScrollBar()->setValue(line);
}
