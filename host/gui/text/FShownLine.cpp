#include "host/gui/text/FShownLine.h"

#include "host/run/FUtf8.h"

#include <algorithm>

namespace {

constexpr int tabWidth = 8;

/** As FUtf8::next, for bytes that may be invalid: those become U+FFFD, one by one. */
char32_t nextOf(std::string_view text, qint64& offset) {
    qint64 after = offset;
    char32_t c = FUtf8::next(text, after);
    const auto isBroken = [](char byte) { return !FUtf8::isContinuation(byte); };
    const char* const first = text.data() + offset;
    if (c == FUtf8::noCharacter || std::any_of(first + 1, text.data() + after, isBroken)) {
        c = QChar::ReplacementCharacter;
        after = offset + 1;
    }
    offset = after;
    return QChar::category(c) == QChar::Other_Control && c != U'\t' ? char32_t{QChar::ReplacementCharacter} : c;
}

}  // namespace

FShownLine::FShownLine(std::string_view bytes, int cells) {
    qint64 offset = 0;
    while (offset < static_cast<qint64>(bytes.size()) && text.size() < cells) {
        const qint64 begin = offset;
        const char32_t c = nextOf(bytes, offset);
        const int width = c == U'\t' ? tabWidth - text.size() % tabWidth : 1;
        if (c == U'\t') {
            text.append(QString(width, QLatin1Char(' ')));
        } else if (QChar::requiresSurrogates(c)) {
            text.append(QChar(QChar::highSurrogate(c))).append(QChar(QChar::lowSurrogate(c)));
        } else {
            text.append(QChar(static_cast<ushort>(c)));
        }
        offsets.resize(static_cast<std::size_t>(text.size()), begin);
    }
    offsets.push_back(offset);
}

int FShownLine::cellOf(qint64 offset) const {
    const auto found = std::upper_bound(offsets.begin(), offsets.end() - 1, offset);
    const auto cell = found - offsets.begin();
    // The first cell of the character.
    return cell == 0 || offset >= offsets.back()
               ? static_cast<int>(cell)
               : static_cast<int>(
                     std::lower_bound(offsets.begin(), offsets.end(), offsets[static_cast<std::size_t>(cell - 1)]) -
                     offsets.begin());
}
