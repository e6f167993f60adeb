#include "genericintegration/templates/FTemplateTags.h"

#include "genericintegration/templates/FTemplateScanner.h"

#include <QStringMatcher>

namespace FTemplateTags {
namespace {

QStringList namesOf(const QString& text, Qt::CaseSensitivity sensitivity) {
    QStringList names;
    FTemplateScanner scanner(text, sensitivity);
    while (const auto tag = scanner.next()) {
        names.append(tag->name.toString());
    }
    return names;
}

}  // namespace

QString tagOf(const QString& name) {
    return openingMarker.toString() + name + closingMarker.toString();
}

QString nameIn(const QString& text) {
    const bool isTag = text.startsWith(openingMarker) && text.endsWith(closingMarker);
    const QString name = isTag ? text.mid(openingMarker.size()).chopped(closingMarker.size()) : QString();
    return name.contains(openingMarker) ? QString() : name;
}

QStringList entryNames(const QString& text) {
    QStringList names = namesOf(text, Qt::CaseSensitive);
    names.removeDuplicates();
    return names;
}

QStringList tagNames(const QString& text) {
    return namesOf(text, Qt::CaseInsensitive);
}

bool containsTag(const QString& text, const QString& name) {
    return text.contains(tagOf(name), Qt::CaseInsensitive);
}

// QString::replace moves the rest of the text once for every thousand replacements, which isn't linear.
QString replaceTag(const QString& text, const QString& name, const QString& replacement) {
    const QStringMatcher matcher(tagOf(name), Qt::CaseInsensitive);
    QString result;
    result.reserve(text.size());
    int copied = 0;
    for (int found = matcher.indexIn(text); found >= 0; found = matcher.indexIn(text, copied)) {
        result.append(text.midRef(copied, found - copied)).append(replacement);
        copied = found + matcher.pattern().size();
    }
    return result.append(text.midRef(copied));
}

QString renameTag(const QString& text, const QString& oldName, const QString& newName) {
    return replaceTag(text, oldName, tagOf(newName));
}

}  // namespace FTemplateTags
