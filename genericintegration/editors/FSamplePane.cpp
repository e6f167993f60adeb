#include "genericintegration/editors/FSamplePane.h"

#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "genericintegration/editors/FGenIntResultsFileEditor.h"
#include "genericintegration/marking/FDocumentLineEnd.h"
#include "host/core/FViewCtrl.h"
#include "host/gui/base/FGroupBox.h"

#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

FSamplePane::FSamplePane(FGenIntResultsFileEditor& page) : mpEdit(new FGenIntResultsFileEdit(&page)), mMarker(*mpEdit) {
    const bool isSmall = FViewCtrl::hasSmallScreen();
    const int margin = isSmall ? 4 : 8;
    const int spacing = isSmall ? 6 : 12;
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(spacing);
    auto* row = new QWidget;
    row->setObjectName(QStringLiteral("AttributeRow"));
    row->setProperty("last", true);
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(mpEdit);
    auto* group = new FGroupBox(QStringLiteral("File"));
    group->layout()->addWidget(row);
    column->addWidget(group, 1);
    mpEdit->setLineNumbers([this](int block) { return mLongLines.numberOf(block); });
    // The text scrolls without a signal of the scroll bar, too; its range changes with the height of the view.
    connect(mpEdit, &QPlainTextEdit::updateRequest, this, [this](const QRect&, int dy) {
        if (dy != 0) {
            followView();
        }
    });
    connect(mpEdit->verticalScrollBar(), &QScrollBar::rangeChanged, this, &FSamplePane::followView);
}

FSamplePane::~FSamplePane() {
    // The widget goes after this object.
    disconnect(mpEdit, nullptr, this, nullptr);
    disconnect(mpEdit->verticalScrollBar(), nullptr, this, nullptr);
}

bool FSamplePane::setText(const QString& text) {
    if (text == mText && mpEdit->document()->isEmpty() == text.isEmpty()) {
        return false;
    }
    const QPoint scrolled(mpEdit->horizontalScrollBar()->value(), mpEdit->verticalScrollBar()->value());
    mText = text;
    unmark();  // a new text takes over the format at the cursor
    mpSample.reset();
    mLongLines = FLongLines(text);
    mpEdit->setPlainText(mLongLines.areThere() ? mLongLines.cut(text) : text);
    mpEdit->horizontalScrollBar()->setValue(scrolled.x());
    mpEdit->verticalScrollBar()->setValue(scrolled.y());
    return true;
}

void FSamplePane::letGo() {
    mMarked.reset();
    mMarker.forget();
    mpSample.reset();
    mText.clear();
    mpEdit->clear();
}

const FResultSample& FSamplePane::sample() {
    if (!mpSample) {
        mpSample = std::make_unique<FResultSample>(mText);
    }
    return *mpSample;
}

FFoundValue FSamplePane::mark(const FValueDescription& value, const FSeparatorSettings& separators) {
    const FFoundValue found = sample().read(value, separators);
    const FLineRange view = linesInView();
    mMarked = {value, separators, FResultMarks::of(sample(), value, separators, found, view)};
    const FResultMarks marks = shownMarks(view);
    if (mMarker.paint(marks)) {
        mpEdit->show(marks.place, marks.cursor);
    }
    return found;
}

void FSamplePane::unmark() {
    mMarked.reset();
    mMarker.clear();
}

void FSamplePane::followView() {
    if (mMarked && mMarked->value.average) {
        const FLineRange view = linesInView();
        mMarked->marks.showRows(sample(), mMarked->value, mMarked->separators, view);
        mMarker.paint(shownMarks(view));
    }
}

FLineRange FSamplePane::linesInView() {
    const FTextRange view = mpEdit->inView();
    return {sample().lineAtPosition(positionOf(view.begin)), sample().lineAtPosition(positionOf(view.end()))};
}

FTextRange FSamplePane::shown(FTextRange range) const {
    const int begin = mLongLines.shownAt(range.begin);
    return {begin, range.length > 0 ? mLongLines.shownAt(range.end() - 1) + 1 - begin : 0};
}

FResultMarks FSamplePane::shownMarks(FLineRange view) {
    FResultMarks marks = mMarked->marks;
    if (mMarked->value.average) {
        const auto isOut = [&](FTextRange place) {
            const int line = sample().lineAtPosition(place.begin);
            return line < view.first || line > view.last;
        };
        auto& places = marks.readerPlaces;
        places.erase(std::remove_if(places.begin(), places.end(), isOut), places.end());
    }
    for (std::vector<FTextRange>* ranges : {&marks.lines, &marks.columns, &marks.readerPlaces}) {
        std::transform(ranges->begin(), ranges->end(), ranges->begin(),
                       [this](FTextRange range) { return shown(range); });
    }
    if (marks.anchor) {
        marks.anchor = shown(*marks.anchor);
    }
    marks.place = shown(marks.place);
    marks.cursor = mLongLines.shownAt(marks.cursor);
    return marks;
}

FTextRange FSamplePane::selection() const {
    const QTextCursor cursor = mpEdit->textCursor();
    const int begin = positionOf(cursor.selectionStart());
    return {begin, positionOf(cursor.selectionEnd()) - begin};
}

void FSamplePane::goTo(int line, int column) {
    mpEdit->goTo(mLongLines.shownAt(FDocumentLineEnd::positionAt(mText, line, column)));
    mpEdit->setFocus();
}
