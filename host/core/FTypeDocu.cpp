#include "host/core/FTypeDocu.h"

#include <QHash>
#include <QTranslator>

namespace {

QHash<QString, QString>& texts() {
    static QHash<QString, QString> all;
    return all;
}

QString entry(const QString& className, int area) {
    return className + QLatin1Char(':') + QString::number(area);
}

const QTranslator& translator() {
    static const QTranslator* loaded = [] {
        auto* fresh = new QTranslator;
        fresh->load(QStringLiteral(":/documentation/reference_en.qm"));
        return fresh;
    }();
    return *loaded;
}

}  // namespace

QString FTypeDocu::translate(const QString& key, const QString& disambiguation) {
    const QString text =
        translator().translate("reference", key.toUtf8().constData(),
                               disambiguation.isEmpty() ? nullptr : disambiguation.toUtf8().constData());
    return text.isEmpty() ? key : text;
}

void FTypeDocu::add(const QString& className, const QString& text, int area) {
    texts()[entry(className, area)] += text;
}

QString FTypeDocu::get(const QString& className, int area) {
    return texts().value(entry(className, area));
}
