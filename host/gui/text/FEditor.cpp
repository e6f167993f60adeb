#include "host/gui/text/FEditor.h"

#include "host/gui/base/FFixedFont.h"
#include "host/gui/text/FLineLayout.h"
#include "host/gui/text/FLineNumberDisplay.h"

#include <QMimeData>
#include <QTextBlock>

#include <algorithm>
#include <utility>

FEditor::FEditor(int digits, bool showsLineNumbers, QWidget* parent)
    : QPlainTextEdit(parent),
      mDigits(digits),
      mShowsLineNumbers(showsLineNumbers),
      mpGutter(new FLineNumberDisplay(this)) {
    auto* text = new QTextDocument(this);
    text->setDocumentLayout(new FLineLayout(text));
    setDocument(text);
    setUndoRedoEnabled(false);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    constexpr qreal points = 9;
    setFont(FFixedFont::named(QStringLiteral("Courier New"), points));
    connect(this, &QPlainTextEdit::blockCountChanged, this, &FEditor::updateLineNumberAreaWidth);
    connect(this, &QPlainTextEdit::updateRequest, mpGutter, &FLineNumberDisplay::follow);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this,
            [this] { mpGutter->setCurrentBlock(textCursor().blockNumber()); });
    updateLineNumberAreaWidth(0);
}

void FEditor::setLineNumbers(std::function<int(int block)> numberOf) {
    mNumberOf = std::move(numberOf);
    mpGutter->update();
}

void FEditor::setLineNumbersShown(bool shown) {
    mShowsLineNumbers = shown;
    updateLineNumberAreaWidth(0);
    mpGutter->setCurrentBlock(-1);
    emit updateRequest(rect(), 0);
}

int FEditor::lineNumberAreaWidth() const {
    if (!mShowsLineNumbers) {
        return 0;
    }
    const int digits = std::max(mDigits, static_cast<int>(QString::number(blockCount()).size()));
    return digits * fontMetrics().horizontalAdvance(QLatin1Char('9')) + 2 * gutterMargin(fontMetrics());
}

std::vector<FEditor::ShownBlock> FEditor::shownBlocks(const QRect& rect) const {
    std::vector<ShownBlock> shown;
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= rect.bottom()) {
        const qreal height = blockBoundingRect(block).height();
        if (block.isVisible() && top + height >= rect.top()) {
            shown.push_back({block.blockNumber(), qRound(top), fontMetrics().height()});
        }
        top += height;
        block = block.next();
    }
    return shown;
}

void FEditor::goTo(int line, int column) {
    const QTextBlock block = document()->findBlockByNumber(std::clamp(line, 1, blockCount()) - 1);
    goTo(block.position() + std::clamp(column - 1, 0, block.length() - 1));
}

void FEditor::goTo(int position) {
    QTextCursor cursor(document());
    cursor.setPosition(std::clamp(position, 0, document()->characterCount() - 1));
    setTextCursor(cursor);
    centerCursor();
}

void FEditor::updateLineNumberAreaWidth(int blocks) {
    Q_UNUSED(blocks)
    setViewportMargins(lineNumberAreaWidth(), 0, 0, 0);
    const QRect contents = contentsRect();
    mpGutter->setGeometry(contents.left(), contents.top(), lineNumberAreaWidth(), viewport()->height());
    mpGutter->setVisible(mShowsLineNumbers);
}

// The base also makes HTML and ODF of the selection, which takes seconds for a large one, and loses special blanks.
QMimeData* FEditor::createMimeDataFromSelection() const {
    auto* copied = new QMimeData;
    copied->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n')));
    return copied;
}

void FEditor::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    updateLineNumberAreaWidth(0);
}

void FEditor::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateLineNumberAreaWidth(0);
    }
}
