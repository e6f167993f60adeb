#include "host/script/FToken.h"

#include <algorithm>

namespace {

constexpr int longestShown = 40;

/** The first line of `text`, no longer than what a message bears. */
QString shortened(QStringView text) {
    const auto* lineEnd = std::find_if(text.begin(), text.end(), [](QChar c) { return c == '\n' || c == '\r'; });
    const auto shown = std::min<qsizetype>(lineEnd - text.begin(), longestShown);
    return text.left(shown).toString() + (shown < text.size() ? QStringLiteral("…") : QString());
}

QString inQuotes(QStringView text) {
    return QLatin1Char('"') + shortened(text) + QLatin1Char('"');
}

}  // namespace

int FToken::lineCount() const {
    int lines = 1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        lines += !isPair && (text[i] == '\n' || text[i] == '\r') ? 1 : 0;
    }
    return lines;
}

QString FToken::toString() const {
    switch (kind) {
        case Kind::End:
            return QStringLiteral("the end of the script");
        case Kind::LineEnd:
            return QStringLiteral("the end of the line");
        case Kind::Text:
            return QStringLiteral("the text ") + inQuotes(text.mid(1, text.size() - 2));
        case Kind::BadCharacter:
            if (text.size() == 1 && !text.front().isPrint()) {
                return QStringLiteral("the character U+%1").arg(uint{text.front().unicode()}, 4, 16, QLatin1Char('0'));
            }
            break;
        default:
            break;
    }
    return inQuotes(text);
}
