#include "genericintegration/connector/layout/FItemPath.h"

#include "genericintegration/connector/layout/FItemCaption.h"

namespace {

bool isSeparator(QChar c) {
    return c == u'/' || c == u'\\';
}

QString withoutSeparator(const QString& path) {
    return !path.isEmpty() && isSeparator(path.front()) ? path.mid(1) : path;
}

QString asFolder(const QString& path) {
    return path.isEmpty() || isSeparator(path.back()) ? path : path + u'/';
}

}  // namespace

QString FItemPath::belowBase(const QString& path, const QString& base) {
    return path.startsWith(base) ? withoutSeparator(path.mid(base.size())) : QString();
}

QString FItemPath::folderBelow(const QString& path, const QString& base) {
    const QString folder = asFolder(base);
    const int length = path.size() - folder.size() - FItemCaption::lastPart(path).size();
    return !folder.isEmpty() && path.startsWith(folder) ? path.mid(folder.size(), length) : QString();
}

QString FItemPath::inFolder(const QString& path, const QString& folder) {
    return asFolder(folder) + FItemCaption::lastPart(path);
}

QString FItemPath::withoutBase(const QString& path, const QString& base) {
    QString rest = path;
    return withoutSeparator(base.isEmpty() ? rest : rest.remove(base));
}
