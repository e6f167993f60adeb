#include "genericintegration/io/FSeparatorSettings.h"

QString FSeparatorSettings::expression() const {
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
    return text + regularExpression;
}
