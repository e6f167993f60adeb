#include "host/lodm/FLodmText.h"

#include <QRegularExpression>

namespace {

constexpr int escapeLength = 6;

/** The UTF-16 unit of the escape at that place, or -1. */
int escapedUnit(const QString& text, int place) {
    static const QRegularExpression escape(QStringLiteral("\\\\u([0-9A-Fa-f]{4})"));
    if (text[place] != QLatin1Char('\\')) {
        return -1;
    }
    const auto match =
        escape.match(text, place, QRegularExpression::NormalMatch, QRegularExpression::AnchoredMatchOption);
    return match.hasMatch() ? match.captured(1).toInt(nullptr, 16) : -1;
}

bool isPartOfPair(const QString& text, int place) {
    const bool isHigh = text[place].isHighSurrogate();
    const int other = isHigh ? place + 1 : place - 1;
    return other >= 0 && other < text.size() && (isHigh ? text[other].isLowSurrogate() : text[other].isHighSurrogate());
}

bool isPlain(const QString& text, int place) {
    const QChar c = text[place];
    if (c.isSurrogate()) {
        return isPartOfPair(text, place);
    }
    const ushort unit = c.unicode();
    return (unit >= 0x20 || unit == '\t' || unit == '\n') && unit < 0xFFFE && escapedUnit(text, place) < 0;
}

}  // namespace

QString FLodmText::toXml(const QString& text) {
    QString xml;
    xml.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (isPlain(text, i)) {
            xml += text[i];
        } else {
            xml += QStringLiteral("\\u%1").arg(text[i].unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return xml;
}

QString FLodmText::fromXml(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const int unit = escapedUnit(text, i);
        plain += unit < 0 ? text[i] : QChar(static_cast<ushort>(unit));
        i += unit < 0 ? 0 : escapeLength - 1;
    }
    return plain;
}
