#include "FLiteralMarks.h"

#include "genericintegration/io/FGenIntReader.h"

#include <QRegExp>
#include <QTextBlock>
#include <QTextDocument>

namespace {

const QRegExp indent("^\\s*");

bool isBlank(const QTextCursor& cursor) {
    return QRegExp("\\s*").exactMatch(cursor.block().text());
}

}  // namespace

FLiteralMarks::FLiteralMarks(QPlainTextEdit& in, const FValueDescription& marked, const FSeparatorSettings& how)
    : painted(in.document()->characterCount() - 1, ' '), edit(in), value(marked), separators(how) {
    if (value.average) {
        markRows();
    } else {
        markPlace();
    }
}

void FLiteralMarks::markPlace() {
    int line = value.line;
    const QString& anchor = value.anchor.text;
    bool anchorFound = false;
    bool fromEnd = false;
    if (!anchor.isEmpty()) {
        const bool first = value.anchor.occurrence == FAnchorOccurrence::First;
        edit.moveCursor(first ? QTextCursor::Start : QTextCursor::End);
        anchorFound = edit.find(anchor, first ? QTextDocument::FindFlags() : QTextDocument::FindBackward);
        anchorCursor = edit.textCursor();
    } else if (line < 0) {
        edit.moveCursor(QTextCursor::End);
        ++line;
        fromEnd = true;
    } else {
        edit.moveCursor(QTextCursor::Start);
    }
    QTextCursor c = edit.textCursor();
    const bool up = fromEnd || line < 0;
    const int count = qAbs(line);
    while (fromEnd && isBlank(c)) {
        if (!c.movePosition(QTextCursor::Up)) {
            return;
        }
    }
    if (!c.movePosition(up ? QTextCursor::Up : QTextCursor::Down, QTextCursor::MoveAnchor, count)) {
        if (anchorFound) {
            markAnchor();
        }
        return;
    }
    c.select(QTextCursor::LineUnderCursor);
    QString text = c.selectedText().remove(indent);
    if (count == 0 && !anchor.isEmpty()) {
        const int place = text.lastIndexOf(anchor, -1, Qt::CaseInsensitive);
        text = place < 0 ? text : text.mid(place + anchor.size());
        text.remove(indent);
    }
    markLine(c, text, count, "");
    if (anchorFound) {
        markAnchor();
    }
}

void FLiteralMarks::markAnchor() {
    paint(anchorCursor, 'a');
    QTextCursor c = anchorCursor;
    c.clearSelection();
    edit.setTextCursor(c);
}

void FLiteralMarks::markRows() {
    edit.moveCursor(QTextCursor::End);
    QTextCursor row = edit.textCursor();
    while (row.position() != 0 && isBlank(row) && row.movePosition(QTextCursor::Up)) {
    }
    for (quint32 i = 0; i < value.averageRows; ++i) {
        if (i > 0 && !row.movePosition(QTextCursor::Up)) {
            return;
        }
        QTextCursor c = row;
        c.select(QTextCursor::LineUnderCursor);
        QString text = c.selectedText().remove(indent);
        if (value.line == 0) {
            text = text.mid(value.anchor.text.size());
        }
        text.remove(indent);
        markLine(c, text, value.line, value.anchor.text);
    }
}

// The cursor selects the whole line, of which the text is the end.
void FLiteralMarks::markLine(QTextCursor& c, const QString& text, int line, const QString& anchor) {
    const int indentation = c.selectedText().size() - text.size();
    paint(c, 'l');
    QRegExp separator(separators.expression());
    int start = 0;
    int length = 0;
    FGenIntReader::instance()->findValue(start, length, separator, line, anchor, text, value.column,
                                         separators.findNumbers);
    c.clearSelection();
    c.movePosition(QTextCursor::StartOfLine);
    c.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, indentation);
    c.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, start);
    c.movePosition(QTextCursor::Right, QTextCursor::KeepAnchor, length);
    paint(c, 'c');
    c.clearSelection();
    edit.setTextCursor(c);
}

void FLiteralMarks::paint(const QTextCursor& cursor, char letter) {
    const int length = cursor.selectionEnd() - cursor.selectionStart();
    painted.replace(cursor.selectionStart(), length, QString(length, letter));
}
