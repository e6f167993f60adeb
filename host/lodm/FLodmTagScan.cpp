#include "host/lodm/FLodmTagScan.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int mostAttributes = 100;

struct Bracket {
    QString begin;
    QString end;
};

/** Behind the next `end` from there on, or the end of the text. */
int behind(const QString& xml, const QString& end, int from) {
    const int found = xml.indexOf(end, from);
    return found < 0 ? xml.size() : found + end.size();
}

/** Goes to the end of a tag and counts the attributes. */
int countAttributes(const QString& xml, int& place) {
    int count = 0;
    while (place < xml.size() && xml[place] != QLatin1Char('>')) {
        const QChar c = xml[place];
        count += c == QLatin1Char('=') ? 1 : 0;
        const bool isQuote = c == QLatin1Char('"') || c == QLatin1Char('\'');
        place = isQuote ? behind(xml, c, place + 1) : place + 1;
    }
    return count;
}

}  // namespace

int crowdedTag(const QString& xml) {
    static const Bracket passedOver[] = {{QStringLiteral("<!--"), QStringLiteral("-->")},
                                         {QStringLiteral("<![CDATA["), QStringLiteral("]]>")},
                                         {QStringLiteral("<?"), QStringLiteral("?>")}};
    int place = xml.indexOf(QLatin1Char('<'));
    while (place >= 0) {
        const auto bracket = std::find_if(std::begin(passedOver), std::end(passedOver), [&](const Bracket& candidate) {
            return xml.midRef(place, candidate.begin.size()) == candidate.begin;
        });
        const int tag = place;
        if (bracket != std::end(passedOver)) {
            place = behind(xml, bracket->end, place + bracket->begin.size());
        } else if (countAttributes(xml, place) > mostAttributes) {
            return tag;
        }
        place = xml.indexOf(QLatin1Char('<'), place);
    }
    return -1;
}
