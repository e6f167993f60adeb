#include "genericintegration/io/FRowAverages.h"

#include "genericintegration/io/FColumnCursor.h"
#include "genericintegration/io/FLineWindow.h"
#include "genericintegration/io/FSuspicion.h"
#include "host/run/FResultText.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Before a line feed at offset 0 there is no place to count from, and counting continues at the end of the text.
qint64 rowsBegin(const FResultText& text, quint32 rows) {
    if (text.trimmedSize() == 0) {
        return 0;
    }
    const qint64 lineFeeds = text.index().lineAt(text.trimmedSize());
    const bool startsWithLineFeed = text.text().front() == '\n';
    const qint64 counted = startsWithLineFeed && lineFeeds > 0 ? rows % lineFeeds : rows;
    if (counted > lineFeeds || (counted == 0 && rows > 0)) {
        return 0;
    }
    return counted == 0 ? text.trimmedSize() : std::max<qint64>(text.index().lineStart(lineFeeds - counted + 1), 1) - 1;
}

size_t linesFrom(const FResultText& text, qint64 offset) {
    const qint64 end = text.trimmedSize();
    return offset < end ? static_cast<size_t>(text.index().lineAt(end) - text.index().lineAt(offset) + 1) : 0;
}

}  // namespace

void FRowAverages::add(size_t value, int column, quint32 rows) {
    mAverages.push_back({value, column, rows, rowsBegin(mText, rows)});
    mAverages.back().kept = std::make_shared<FAverageRows>();
    mAverages.back().kept->wanted = rows;
    mAverages.back().kept->rows.reserve(std::min<size_t>(linesFrom(mText, mAverages.back().begin), FAverageRows::most));
}

void FRowAverages::read(std::vector<FFoundValue>& found) {
    std::sort(mAverages.begin(), mAverages.end(),
              [](const Average& left, const Average& right) { return left.column < right.column; });
    readRows();
    for (const Average& average : mAverages) {
        found[average.value] = result(average);
    }
}

// Each average starts at a line or at the line feed before it, so that all averages see the same lines.
void FRowAverages::readRows() {
    const qint64 size = mText.trimmedSize();
    qint64 offset = size;
    for (const Average& average : mAverages) {
        offset = std::min(offset, average.begin);
    }
    const FLineWindow window(mText, {offset, size});
    qint64 number = offset < size ? mText.index().lineAt(offset) : 0;
    for (; offset < size; ++number) {
        const FByteRange line = window.lineFrom(offset);
        if (line.size() == 0) {
            continue;
        }
        FColumnCursor cursor(mText.text(), line, mSeparator, FSuspicion::mayBeIn(line.of(mText.text())));
        const Average* previous = nullptr;
        for (Average& average : mAverages) {
            if (average.begin > line.begin) {
                continue;
            }
            const bool isSame = previous != nullptr && previous->column == average.column;
            addRow(average, isSame ? previous->last : cursor.seek(average.column), number + 1, line.begin);
            previous = &average;
        }
    }
}

void FRowAverages::addRow(Average& average, FColumn column, qint64 line, qint64 lineBegin) const {
    average.last = std::move(column);
    const FColumn& last = average.last;
    if (last.flags && !average.flags) {
        average.oddity = last.oddity;
        average.oddLine = line;
    }
    average.flags |= last.flags;
    if (!last.isNumber) {
        return;
    }
    average.sum += last.number;
    ++average.count;
    FAverageRows& kept = *average.kept;
    if (kept.rows.size() < FAverageRows::most) {
        last.range.size() > 0 ? kept.texts.append(last.range.of(mText.text()))
                              : kept.texts.append(last.text.toStdString());
        const qint64 place =
            mText.index().utf16At(last.range.begin) - mText.index().utf16At(lineBegin) + last.units + 1;
        kept.rows.push_back({line, place, last.number, last.flags, static_cast<qint64>(kept.texts.size())});
    }
}

FFoundValue FRowAverages::result(const Average& average) const {
    FFoundValue value;
    if (average.begin < mText.trimmedSize()) {
        const qint64 place = average.last.range.begin;
        average.last.fill(value, mText, mText.index().lineAt(place), mText.index().lineBegin(place));
    }
    const double mean = average.sum / average.count;
    value.number = std::isnan(mean) ? std::numeric_limits<double>::quiet_NaN() : mean;
    value.flags = average.flags;
    value.flags.setFlag(FFoundFlag::NoRows, average.rows == 0);
    value.flags.setFlag(FFoundFlag::ColumnMissing, average.count == 0 && average.rows > 0);
    value.flags.setFlag(FFoundFlag::FewerRows, average.count < average.rows);
    value.oddity = average.oddity;
    value.oddLine = average.oddLine;
    average.kept->count = average.count;
    value.rows = average.kept;
    return value;
}
