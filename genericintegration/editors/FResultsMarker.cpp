#include "genericintegration/editors/FResultsMarker.h"

#include "genericintegration/editors/FGenIntResultsFileEdit.h"
#include "host/gui/text/FTextColor.h"

#include <optional>

namespace {

QTextCharFormat formatOf(const FResultsMarker::Colors& colors) {
    QTextCharFormat format;
    format.setBackground(FTextColor::background(colors.background));
    format.setForeground(FTextColor::foreground(colors.foreground));
    return format;
}

std::vector<FTextRange> rangesOf(const std::optional<FTextRange>& range) {
    return range ? std::vector<FTextRange>{*range} : std::vector<FTextRange>();
}

}  // namespace

void FResultsMarker::setColors(const Colors& line, const Colors& column, const Colors& anchor) {
    mLine = formatOf(line);
    mColumn = formatOf(column);
    mAnchor = formatOf(anchor);
    const FResultMarks marks = mPainted;
    if (mIsPainted) {
        clear();
        paint(marks);
    }
}

void FResultsMarker::format(const std::vector<FTextRange>& ranges, const QTextCharFormat& format) {
    QTextCursor cursor(mEdit.document());
    // The rows of an average are beside each other: their lines are laid out once. Single places may be far apart.
    const bool areRows = ranges.size() > 1;
    if (areRows) {
        cursor.beginEditBlock();
    }
    for (const FTextRange& range : ranges) {
        cursor.setPosition(range.begin);
        cursor.setPosition(range.end(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
    if (areRows) {
        cursor.endEditBlock();
    }
}

bool FResultsMarker::paint(const FResultMarks& marks) {
    if (mIsPainted && marks == mPainted) {
        return false;
    }
    clear();
    format(marks.lines, mLine);
    format(marks.columns, mColumn);
    format(rangesOf(marks.anchor), mAnchor);
    mEdit.setFramed(marks.readerPlaces);
    mPainted = marks;
    mIsPainted = true;
    return true;
}

void FResultsMarker::clear() {
    format(mPainted.lines, QTextCharFormat());
    format(mPainted.columns, QTextCharFormat());
    format(rangesOf(mPainted.anchor), QTextCharFormat());
    mEdit.setFramed({});
    forget();
}

void FResultsMarker::forget() {
    mPainted = {};
    mIsPainted = false;
}
