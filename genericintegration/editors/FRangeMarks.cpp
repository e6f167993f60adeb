#include "genericintegration/editors/FRangeMarks.h"

#include "host/gui/base/FStateColor.h"
#include "host/gui/text/FEditor.h"

#include <QEvent>
#include <QTextBlock>

#include <algorithm>

FRangeMarks::FRangeMarks(FEditor& editor) : QObject(&editor), mEditor(editor) {
    connect(&editor, &QPlainTextEdit::updateRequest, this, &FRangeMarks::markShown);
    editor.installEventFilter(this);
}

bool FRangeMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        mark();
    }
    return QObject::eventFilter(watched, event);
}

void FRangeMarks::setRanges(std::vector<FTextRange> ranges) {
    mRanges = std::move(ranges);
    mShown = {-1, -1};
    markShown();
}

void FRangeMarks::markShown() {
    const auto blocks = mEditor.shownBlocks(mEditor.viewport()->rect());
    if (blocks.empty()) {
        return;
    }
    const QTextBlock last = mEditor.document()->findBlockByNumber(blocks.back().number);
    const std::pair shown(mEditor.document()->findBlockByNumber(blocks.front().number).position(),
                          last.position() + last.length());
    if (shown != mShown) {
        mShown = shown;
        mark();
    }
}

void FRangeMarks::mark() {
    QList<QTextEdit::ExtraSelection> marks;
    QTextEdit::ExtraSelection mark;
    mark.format.setBackground(FStateColor::backgroundOf(FStateColor::State::Warning));
    auto range = std::partition_point(mRanges.begin(), mRanges.end(),
                                      [this](const FTextRange& candidate) { return candidate.end() < mShown.first; });
    const int end = mEditor.document()->characterCount() - 1;
    for (; range != mRanges.end() && range->begin <= mShown.second && range->end() <= end; ++range) {
        mark.cursor = QTextCursor(mEditor.document());
        mark.cursor.setPosition(range->begin);
        mark.cursor.setPosition(range->end(), QTextCursor::KeepAnchor);
        marks.append(mark);
    }
    mEditor.setExtraSelections(marks);
}
