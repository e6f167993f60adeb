#include "genericintegration/connector/layout/FLinkText.h"

QString FLinkText::name(const QString& expression) {
    QString name = expression.mid(expression.lastIndexOf(u'(') + 1);
    name = name.left(name.indexOf(u')'));
    if (name.startsWith(u'"')) {
        name.remove(0, 1);
    }
    if (name.endsWith(u'"')) {
        name.chop(1);
    }
    return name;
}

QString FLinkText::caption(const QString& expression) {
    const bool asksForFile = expression.contains(QLatin1String("getResultFileName"), Qt::CaseInsensitive);
    return asksForFile ? name(expression) : expression;
}
