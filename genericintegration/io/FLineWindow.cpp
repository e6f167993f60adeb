#include "genericintegration/io/FLineWindow.h"

#include "host/run/FResultText.h"

qint64 FLineWindow::count() const {
    if (mPart.size() == 0) {
        return 0;
    }
    return mText.index().lineAt(mPart.end - 1) - mText.index().lineAt(mPart.begin) + 1;
}

std::optional<FByteRange> FLineWindow::line(qint64 number) const {
    const FTextIndex& index = mText.index();
    const qint64 begin = lineBegin(number);
    if (begin < mPart.begin || begin >= mPart.end) {
        return {};
    }
    const qint64 lineFeed = index.lineFeed(begin);
    return withoutEnd(begin, lineFeed < 0 || lineFeed > mPart.end ? mPart.end : lineFeed);
}

// The next few lines are found faster one by one.
qint64 FLineWindow::lineBegin(qint64 number) const {
    constexpr qint64 few = 8;
    const FTextIndex& index = mText.index();
    if (number > few) {
        return index.lineStart(index.lineAt(mPart.begin) + number);
    }
    qint64 begin = mPart.begin;
    for (; number > 0 && begin >= 0 && begin < mPart.end; --number) {
        const qint64 lineFeed = index.lineFeed(begin);
        begin = lineFeed < 0 ? -1 : lineFeed + 1;
    }
    return begin;
}

FByteRange FLineWindow::lineFrom(qint64& offset) const {
    const qint64 begin = offset;
    // Files with millions of empty lines exist, and a search is slower than this check.
    if (mText.text()[static_cast<size_t>(begin)] == '\n') {
        ++offset;
        return {begin, begin};
    }
    const size_t lineFeed = mPart.of(mText.text()).find('\n', static_cast<size_t>(begin - mPart.begin));
    const qint64 end = lineFeed == std::string_view::npos ? mPart.end : mPart.begin + static_cast<qint64>(lineFeed);
    offset = end < mPart.end ? end + 1 : end;
    return withoutEnd(begin, end);
}

FByteRange FLineWindow::withoutEnd(qint64 begin, qint64 end) const {
    const bool carriageReturn = end > begin && mText.text()[static_cast<size_t>(end - 1)] == '\r';
    return {begin, carriageReturn ? end - 1 : end};
}
