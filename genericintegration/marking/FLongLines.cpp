#include "genericintegration/marking/FLongLines.h"

#include "genericintegration/marking/FDocumentLineEnd.h"

#include <algorithm>

namespace {

int endOfLine(const QString& text, int start) {
    return static_cast<int>(std::find_if(text.begin() + start, text.end(), &FDocumentLineEnd::isPart) - text.begin());
}

/** Calls a function with the start and end of each line, until it returns false. */
template <class Function>
void forEachLine(const QString& text, const Function& function) {
    for (int start = 0; start <= text.size();) {
        const int end = endOfLine(text, start);
        if (!function(start, end)) {
            return;
        }
        start = end < text.size() ? end + FDocumentLineEnd::lengthAt(text, end) : end + 1;
    }
}

}  // namespace

bool FLongLines::hasLonger(const QString& text, int limit) {
    // Such a line covers one of these places, and most places are in a short line.
    for (int place = limit; place < text.size(); place += limit) {
        int start = place;
        while (start > 0 && place - start <= limit && !FDocumentLineEnd::isPart(text[start - 1])) {
            --start;
        }
        if (!FDocumentLineEnd::isPart(text[place]) && endOfLine(text, place) - start > limit) {
            return true;
        }
    }
    return false;
}

int FLongLines::first(const QString& text, int limit) {
    if (!hasLonger(text, limit)) {
        return 0;
    }
    int line = 0;
    bool isFound = false;
    forEachLine(text, [&](int start, int end) {
        ++line;
        isFound = end - start > limit;
        return !isFound;
    });
    return isFound ? line : 0;
}

FLongLines::FLongLines(const QString& text) {
    if (!hasLonger(text, longest)) {
        return;
    }
    int position = 0;
    int line = 0;
    forEachLine(text, [&](int start, int end) {
        for (int at = start + piece; end - start > longest && at < end; at += piece) {
            at += text[at].isLowSurrogate() ? 1 : 0;
            if (at < end) {
                mCuts.push_back({at, position + at - start, line});
            }
        }
        position += end - start + 1;
        ++line;
        return true;
    });
}

QString FLongLines::cut(const QString& text) const {
    QString pieces;
    pieces.reserve(text.size() + static_cast<int>(mCuts.size()));
    int copied = 0;
    for (const Cut& cut : mCuts) {
        pieces.append(text.midRef(copied, cut.offset - copied)).append(QLatin1Char('\n'));
        copied = cut.offset;
    }
    return pieces.append(text.midRef(copied));
}

/** How many cuts, from the first one, a condition holds for; it is called with a cut and the number of those before. */
template <class Condition>
int FLongLines::cutsBefore(const Condition& condition) const {
    const auto after = std::partition_point(mCuts.begin(), mCuts.end(), [&](const Cut& cut) {
        return condition(cut, static_cast<int>(&cut - mCuts.data()));
    });
    return static_cast<int>(after - mCuts.begin());
}

int FLongLines::shownAt(int position) const {
    return position + cutsBefore([position](const Cut& cut, int) { return cut.position <= position; });
}

int FLongLines::positionOf(int shown) const {
    return shown - cutsBefore([shown](const Cut& cut, int number) { return cut.position + number < shown; });
}

int FLongLines::numberOf(int shownLine) const {
    const auto shownLineOf = [](const Cut& cut, int number) { return cut.line + number + 1; };
    const int cuts = cutsBefore([&](const Cut& cut, int number) { return shownLineOf(cut, number) <= shownLine; });
    const bool isContinued = cuts > 0 && shownLineOf(mCuts[static_cast<std::size_t>(cuts) - 1], cuts - 1) == shownLine;
    return isContinued ? 0 : shownLine - cuts + 1;
}
