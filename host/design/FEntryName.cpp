#include "host/design/FEntryName.h"

#include <algorithm>

namespace {

bool mayStand(QChar c) {
    static const QString excluded = QStringLiteral("|[]<>\n\r\u2028\u2029");
    return !excluded.contains(c);
}

}  // namespace

bool isEntryName(const QString& text) {
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), mayStand);
}

QString legalEntryName(const QString& text) {
    QString name = text;
    std::replace_if(
        name.begin(), name.end(), [](QChar c) { return !mayStand(c); }, QLatin1Char('_'));
    return name.isEmpty() ? QStringLiteral("newEntry") : name;
}

QStringList splitEntryPath(const QString& path, QString& reason) {
    const QStringList names = path.split(QLatin1Char('|'));
    if (names.size() > mostEntryLevels) {
        reason = QStringLiteral("\"%1\" has more than %2 levels").arg(path, QString::number(mostEntryLevels));
        return {};
    }
    const auto wrong = std::find_if_not(names.begin(), names.end(), isEntryName);
    if (wrong != names.end()) {
        reason = QStringLiteral(
                     "\"%1\" in \"%2\" can't be the name of an entry; a name isn't empty and holds no [ ] < > "
                     "and no line end")
                     .arg(*wrong, path);
        return {};
    }
    return names;
}
