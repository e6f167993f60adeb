#include "genericintegration/io/FSeparatorSettings.h"

QRegExp FSeparatorSettings::pattern() const {
    if (findNumbers) {
        return {};
    }
    QString text;
    if (spacesAndTabs) {
        text += QStringLiteral("\\s+");
    }
    if (!text.isEmpty() && !regularExpression.isEmpty()) {
        text += QLatin1Char('|');
    }
    return QRegExp(text + regularExpression);
}
