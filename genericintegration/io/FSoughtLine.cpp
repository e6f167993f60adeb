#include "genericintegration/io/FSoughtLine.h"

#include "genericintegration/io/FLineWindow.h"
#include "host/run/FResultText.h"

#include <algorithm>

namespace {

// The first line can't be reached: any line further up gives the second one.
FSoughtLine upward(const FLineWindow& window, qint64 line) {
    FSoughtLine sought;
    const qint64 last = window.count() - 1;
    if (last > 0) {
        sought.range = window.line(std::max<qint64>(last + line, 0) + 1);
    }
    sought.flags.setFlag(FFoundFlag::LineBeyondEnd, last + line < 0);
    return sought;
}

FSoughtLine downward(const FLineWindow& window, qint64 line) {
    FSoughtLine sought;
    sought.range = window.line(line);
    sought.flags.setFlag(FFoundFlag::LineBeyondEnd, !sought.range);
    return sought;
}

/** The last line feed at or before an offset, or the end of the text if there is none. */
qint64 lineFeedBefore(const FResultText& text, qint64 offset) {
    if (text.text()[static_cast<size_t>(offset)] == '\n') {
        return offset;
    }
    const qint64 begin = text.index().lineBegin(offset);
    return begin > 0 ? begin - 1 : text.size();
}

}  // namespace

FSoughtLine FSoughtLine::inText(const FResultText& text, int line) {
    const FLineWindow window(text, {0, text.trimmedSize()});
    return line < 0 ? upward(window, line) : downward(window, line);
}

FSoughtLine FSoughtLine::fromAnchor(const FResultText& text, FByteRange anchor, int line) {
    if (line < 0) {
        const qint64 lineFeed = lineFeedBefore(text, anchor.begin);
        FSoughtLine sought = upward(FLineWindow(text, {0, lineFeed}), line);
        sought.flags.setFlag(FFoundFlag::LineBeyondEnd, sought.flags != 0 || lineFeed == text.size());
        return sought;
    }
    // If the text ends with the anchor, the rest of its line exists, but is empty.
    if (line == 0 && anchor.end == text.size()) {
        return {FByteRange{anchor.end, anchor.end}, {}};
    }
    return downward(FLineWindow(text, {anchor.end, text.size()}), line);
}
