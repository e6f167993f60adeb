#include "genericintegration/marking/FLongLines.h"

#include "genericintegration/marking/FDocumentLineEnd.h"

#include <algorithm>

namespace FLongLines {
namespace {

int endOfLine(const QString& text, int start) {
    return static_cast<int>(std::find_if(text.begin() + start, text.end(), &FDocumentLineEnd::isPart) - text.begin());
}

/** End of the piece that starts at a place of a line. A surrogate pair stays together. */
int endOfPiece(const QString& text, int start, int lineEnd) {
    const int end = std::min(start + piece, lineEnd);
    return end < lineEnd && text[end].isLowSurrogate() ? end + 1 : end;
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

int first(const QString& text, int limit) {
    int line = 0;
    bool isFound = false;
    forEachLine(text, [&](int start, int end) {
        ++line;
        isFound = end - start > limit;
        return !isFound;
    });
    return isFound ? line : 0;
}

QString cut(const QString& text) {
    QString pieces;
    pieces.reserve(text.size() + text.size() / piece);
    int copied = 0;
    forEachLine(text, [&](int start, int end) {
        int at = endOfPiece(text, start, end);
        for (; end - start > longest && at < end; at = endOfPiece(text, at, end)) {
            pieces.append(text.midRef(copied, at - copied)).append(QLatin1Char('\n'));
            copied = at;
        }
        return true;
    });
    return pieces.append(text.midRef(copied));
}

std::pair<int, int> placeInCut(const QString& text, int line, int column) {
    int number = 0;
    int inCut = 0;
    int inPiece = column;
    forEachLine(text, [&](int start, int end) {
        ++number;
        ++inCut;
        const int wanted = number == line ? start + column - 1 : end;
        int pieceStart = start;
        for (int at = endOfPiece(text, start, end); end - start > longest && at < end && at <= wanted;
             at = endOfPiece(text, at, end)) {
            ++inCut;
            pieceStart = at;
        }
        inPiece = std::max(column - (pieceStart - start), 0);
        return number < line;
    });
    return {inCut, inPiece};
}

}  // namespace FLongLines
