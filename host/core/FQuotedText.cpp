#include "host/core/FQuotedText.h"

namespace {

const QChar quote = QLatin1Char('"');
const QChar backslash = QLatin1Char('\\');

bool isEscaped(QChar c) {
    return c == quote || c == backslash;
}

bool isEscape(QStringView text, int position) {
    return text[position] == backslash && position + 1 < text.size() && isEscaped(text[position + 1]);
}

}  // namespace

QString quoteText(const QString& text) {
    QString quoted;
    quoted.reserve(text.size() + 2);
    quoted += quote;
    for (const QChar c : text) {
        if (isEscaped(c)) {
            quoted += backslash;
        }
        quoted += c;
    }
    quoted += quote;
    return quoted;
}

std::optional<QString> unquoteText(QStringView quoted) {
    if (!quoted.startsWith(quote) || closingQuote(quoted, 0) != quoted.size() - 1) {
        return std::nullopt;
    }
    const QStringView inner = quoted.mid(1, quoted.size() - 2);
    QString text;
    text.reserve(static_cast<int>(inner.size()));
    for (int i = 0; i < inner.size(); ++i) {
        if (isEscape(inner, i)) {
            ++i;
        }
        text += inner[i];
    }
    return text;
}

int closingQuote(QStringView text, int open) {
    for (int i = open + 1; i < text.size(); ++i) {
        if (text[i] == quote) {
            return i;
        }
        if (isEscape(text, i)) {
            ++i;
        }
    }
    return -1;
}
