#include "host/gui/text/FLineNumberDisplay.h"

#include "host/gui/base/FStateColor.h"
#include "host/gui/text/FEditor.h"

#include <QPaintEvent>
#include <QPainter>

FLineNumberDisplay::FLineNumberDisplay(FEditor* editor) : QWidget(editor), mpEditor(editor) {
    setObjectName(QStringLiteral("lineNumbers"));
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Window);
}

void FLineNumberDisplay::follow(const QRect& rect, int dy) {
    if (dy != 0) {
        scroll(0, dy);
    } else {
        update(0, rect.y(), width(), rect.height());
    }
}

void FLineNumberDisplay::setCurrentBlock(int block) {
    if (block != mCurrentBlock || block < 0) {
        mCurrentBlock = block;
        update();
    }
}

QSize FLineNumberDisplay::sizeHint() const {
    return {mpEditor->lineNumberAreaWidth(), 0};
}

void FLineNumberDisplay::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setFont(mpEditor->font());
    const QColor secondary = FStateColor::of(FStateColor::State::Secondary);
    for (const FEditor::ShownBlock& block : mpEditor->shownBlocks(event->rect())) {
        painter.setPen(block.number == mCurrentBlock ? palette().color(QPalette::WindowText) : secondary);
        const int number = mpEditor->lineNumberOf(block.number);
        painter.drawText(0, block.top, width() - FEditor::gutterMargin(fontMetrics()), block.height,
                         Qt::AlignRight | Qt::AlignTop, number > 0 ? QString::number(number) : QString());
    }
}
