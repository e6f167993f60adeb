#include "host/gui/text/FLineLayout.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>

FLineLayout::FLineLayout(QTextDocument* text) : QPlainTextDocumentLayout(text) {}

QSizeF FLineLayout::documentSize() const {
    return {mWidth, static_cast<qreal>(document()->lineCount())};
}

QRectF FLineLayout::blockBoundingRect(const QTextBlock& block) const {
    if (block.isValid() && block.layout()->lineCount() == 0) {
        layOut(block);
    }
    return QPlainTextDocumentLayout::blockBoundingRect(block);
}

// A separator of lines within a block makes several lines of it.
void FLineLayout::layOut(QTextBlock block) const {
    const qreal margin = document()->documentMargin();
    QTextLayout& layout = *block.layout();
    layout.setTextOption(document()->defaultTextOption());
    const int linesBefore = document()->lineCount();
    qreal height = 0;
    qreal width = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(std::numeric_limits<int>::max());
        line.setPosition({margin, height});
        height += line.height() + std::min(0.0, std::ceil(line.leading()));
        width = std::max(width, line.naturalTextWidth() + 2 * margin);
    }
    layout.endLayout();
    block.setLineCount(block.isVisible() ? layout.lineCount() : 0);
    if (width > mWidth || document()->lineCount() != linesBefore) {
        mWidth = std::max(width, mWidth);
        reportSize();
    }
}

// Whoever learns of it may have further lines laid out; the size is read after that.
void FLineLayout::reportSize() const {
    if (!mIsReporting) {
        const QScopedValueRollback<bool> guard(mIsReporting, true);
        emit const_cast<FLineLayout*>(this)->documentSizeChanged(documentSize());
    }
}

void FLineLayout::documentChanged(int from, int removed, int added) {
    const QTextBlock block = document()->findBlock(from);
    const QTextBlock last = document()->findBlock(std::max(0, from + removed + added - 1));
    const bool isWithinBlock = block.isValid() && block == last && document()->blockCount() == mBlocks;
    mBlocks = document()->blockCount();
    if (isWithinBlock) {
        const qreal height = block.layout()->boundingRect().height();
        layOut(block);
        if (block.layout()->boundingRect().height() == height) {
            emit updateBlock(block);
        } else {
            emit update();
        }
        return;
    }
    if (from == 0 && added >= document()->characterCount() - 1) {
        mWidth = 0;
    }
    QPlainTextDocumentLayout::documentChanged(from, removed, added);
}
