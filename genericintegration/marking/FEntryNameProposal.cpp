#include "genericintegration/marking/FEntryNameProposal.h"

#include "genericintegration/marking/FLineCharacters.h"

#include <algorithm>

namespace {

bool endsName(QChar c) {
    return c == u':' || c == u'=' || c == u'#' || c == u',' || c == u';' || c.isDigit();
}

/** Each sequence of other characters becomes one "_". */
QString joinWords(const QString& text) {
    QString joined;
    for (const QChar c : text) {
        if (FLineCharacters::isWordPart(c) && c != u'_') {
            joined.append(c);
        } else if (!joined.endsWith(u'_')) {
            joined.append(u'_');
        }
    }
    return joined;
}

QString cut(QString name) {
    while (name.size() > FEntryNameProposal::longest) {
        const int last = name.lastIndexOf(u'_');
        name.truncate(last < 0 ? FEntryNameProposal::longest : last);
    }
    return name;
}

}  // namespace

FEntryNameProposal::FEntryNameProposal(const QString& line, const QString& selection) {
    const auto end = std::find_if(line.cbegin(), line.cend(), endsName);
    name = cut(joinWords(line.left(static_cast<int>(end - line.cbegin())).simplified()));
    bool isNumber = false;
    const double number = selection.toDouble(&isNumber);
    value = isNumber ? number : 0;
}

QString FEntryNameProposal::usable(const QString& name) {
    return name.isEmpty() || name == QLatin1String("_") ? QStringLiteral("newEntry") : name;
}
