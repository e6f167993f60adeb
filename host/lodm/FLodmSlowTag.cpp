#include "host/lodm/FLodmSlowTag.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int mostAttributes = 100;

struct Bracket {
    QString start;
    QString end;
};

bool startsAt(const QString& xml, int place, const QString& text) {
    return xml.midRef(place, text.size()) == text;
}

/** The comment, CDATA section or instruction that starts at that place; null for a tag. */
const Bracket* bracketAt(const QString& xml, int place) {
    static const Bracket brackets[] = {{QStringLiteral("<!--"), QStringLiteral("-->")},
                                       {QStringLiteral("<![CDATA["), QStringLiteral("]]>")},
                                       {QStringLiteral("<?"), QStringLiteral("?>")}};
    const auto found = std::find_if(std::begin(brackets), std::end(brackets),
                                    [&](const Bracket& bracket) { return startsAt(xml, place, bracket.start); });
    return found == std::end(brackets) ? nullptr : found;
}

/** The place after the next `end`, or the end of the text. */
int placeAfter(const QString& xml, const QString& end, int from) {
    const int found = xml.indexOf(end, from);
    return found < 0 ? xml.size() : found + end.size();
}

/** Counts the attributes of a tag, and moves to its end. */
int countAttributes(const QString& xml, int& place) {
    int count = 0;
    while (place < xml.size() && xml[place] != QLatin1Char('>')) {
        const QChar c = xml[place];
        count += c == QLatin1Char('=') ? 1 : 0;
        const bool isQuote = c == QLatin1Char('"') || c == QLatin1Char('\'');
        place = isQuote ? placeAfter(xml, c, place + 1) : place + 1;
    }
    return count;
}

}  // namespace

std::optional<FLodmSlowTag> FLodmSlowTag::find(const QString& xml) {
    int place = xml.indexOf(QLatin1Char('<'));
    while (place >= 0) {
        const int tag = place;
        if (const Bracket* bracket = bracketAt(xml, place)) {
            place = placeAfter(xml, bracket->end, place + bracket->start.size());
        } else if (startsAt(xml, place, QStringLiteral("<!"))) {
            return FLodmSlowTag{tag, QStringLiteral("a document type declaration isn't allowed; remove it")};
        } else if (countAttributes(xml, place) > mostAttributes) {
            return FLodmSlowTag{tag, QStringLiteral("a tag has more than %1 attributes").arg(mostAttributes)};
        }
        place = xml.indexOf(QLatin1Char('<'), place);
    }
    return {};
}
