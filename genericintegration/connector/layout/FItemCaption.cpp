#include "genericintegration/connector/layout/FItemCaption.h"

#include <algorithm>

namespace {

int lastSeparator(const QString& path) {
    return std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
}

}  // namespace

QString FItemCaption::lastPart(const QString& path) {
    return path.mid(lastSeparator(path) + 1);
}

QString FItemCaption::typeText(const QString& name) {
    const int dot = name.lastIndexOf(u'.');
    QString type = name.mid((dot < 0 ? lastSeparator(name) : dot) + 1);
    while (type.endsWith(u'"')) {
        type.chop(1);
    }
    return type.left(4);
}

QString FItemCaption::shortened(const QString& path, int limit) {
    const QString file = lastPart(path);
    if (limit < 0 || path.size() <= limit + 4 || file.size() == path.size()) {
        return path;
    }
    const int kept = limit - file.size();
    if (kept <= 0) {
        return file;
    }
    return path.left(kept / 2 + kept % 2) + QLatin1String("...") + path.right(file.size() + kept / 2);
}

QString FItemCaption::entryName(const QString& path) {
    const QString file = lastPart(path);
    const int dot = file.lastIndexOf(u'.');
    const QString name = dot < 0 ? file : file.left(dot);
    return name.isEmpty() ? QStringLiteral("newEntry") : name;
}
