#include "genericintegration/io/FRowAverage.h"

#include <algorithm>
#include <cmath>

#include "genericintegration/io/FColumnCursor.h"
#include "genericintegration/io/FLineWindow.h"
#include "genericintegration/io/FResultText.h"

namespace {

// A line feed at the very begin leaves no place before it, and the place after that is the text's end.
qint64 rowsBegin(const FResultText& text, quint32 rows) {
    const qint64 lineFeeds = text.index().lineAt(text.trimmedSize());
    const bool startsAnew = text.text().front() == '\n';
    const qint64 counted = startsAnew && lineFeeds > 0 ? rows % lineFeeds : rows;
    if (counted > lineFeeds || (counted == 0 && rows > 0))
        return 0;
    return counted == 0 ? text.trimmedSize() : std::max<qint64>(text.index().lineStart(lineFeeds - counted + 1), 1) - 1;
}

}  // namespace

FFoundValue averageLastRows(const FResultText& text, const QRegExp* separator, int column, quint32 rows) {
    const qint64 size = text.trimmedSize();
    const qint64 begin = size > 0 ? rowsBegin(text, rows) : size;
    const FLineWindow window(text, {begin, size});
    FColumn last;
    FFoundFlags flags{};
    double sum = 0;
    quint32 count = 0;
    for (qint64 offset = begin; offset < size;) {
        const FByteRange line = window.lineFrom(offset);
        if (line.size() == 0)
            continue;
        last = FColumnCursor(text.text(), line, separator).seek(column);
        flags |= last.flags;
        if (last.isNumber) {
            sum += last.number;
            ++count;
        }
    }
    FFoundValue value = begin < size ? last.value(text) : FFoundValue();
    const double mean = sum / count;
    value.number = std::isnan(mean) ? std::numeric_limits<double>::quiet_NaN() : mean;
    value.flags = flags;
    value.flags.setFlag(FFoundFlag::ColumnMissing, count == 0);
    value.flags.setFlag(FFoundFlag::FewerRows, count < rows);
    return value;
}
