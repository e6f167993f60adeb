#include "genericintegration/editors/FWrittenTextView.h"

#include "genericintegration/editors/FRangeMarks.h"
#include "genericintegration/editors/FShownText.h"
#include "genericintegration/marking/FLongLines.h"
#include "genericintegration/marking/FWrittenText.h"

#include <QScopedValueRollback>
#include <QScrollBar>

namespace {

constexpr int gutterDigits = 3;
constexpr int delay = 200;  // milliseconds

}  // namespace

FWrittenTextView::FWrittenTextView(FEditor& edit, std::function<FWrittenText()> write, QWidget* parent)
    : FEditor(gutterDigits, true, parent),
      mWrite(std::move(write)),
      mTemplateBar(edit.verticalScrollBar()),
      mpTags(new FRangeMarks(edit)),
      mpValues(new FRangeMarks(*this)) {
    setObjectName(QStringLiteral("writtenText"));
    setAccessibleName(QStringLiteral("Text that the present values give"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    hide();
    mTimer.setSingleShot(true);
    mTimer.setInterval(delay);
    connect(&mTimer, &QTimer::timeout, this, &FWrittenTextView::refresh);
    couple(mTemplateBar, verticalScrollBar());
    couple(verticalScrollBar(), mTemplateBar);
}

// A bar that has come to its end doesn't move the other one back.
void FWrittenTextView::couple(QScrollBar* from, QScrollBar* to) {
    connect(from, &QScrollBar::valueChanged, this, [this, to](int value) {
        if (!mIsScrolling && isVisible()) {
            const QScopedValueRollback<bool> guard(mIsScrolling, true);
            to->setValue(value);
        }
    });
}

void FWrittenTextView::refresh() {
    if (isVisible()) {
        FWrittenText written = mWrite();
        const FLongLines lines(written.text);
        setLineNumbers([lines](int block) { return lines.numberOf(block); });
        if (lines.areThere()) {
            written = {lines.cut(written.text)};
        }
        FShownText::change(*this, document()->toRawText(), written.text);
        mpTags->setRanges(std::move(written.tags));
        mpValues->setRanges(std::move(written.values));
        const QScopedValueRollback<bool> guard(mIsScrolling, true);
        verticalScrollBar()->setValue(mTemplateBar->value());
    }
}

void FWrittenTextView::showEvent(QShowEvent* event) {
    FEditor::showEvent(event);
    refresh();
}

void FWrittenTextView::hideEvent(QHideEvent* event) {
    FEditor::hideEvent(event);
    mpTags->setRanges({});
}
