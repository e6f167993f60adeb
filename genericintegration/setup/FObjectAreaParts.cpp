#include "genericintegration/setup/FObjectAreaParts.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

QStringList namesIn(const FSyntaxDeclaration& declaration) {
    QStringList names = declaration.creator.getNames();
    for (const FSyntaxBlockLine& line : declaration.block) {
        for (const FSyntaxExpr& call : line) {
            names += call.getNames();
        }
    }
    return names;
}

QStringList namesIn(const FSyntaxStatement& statement) {
    if (const auto* declaration = std::get_if<FSyntaxDeclaration>(&statement.content)) {
        return namesIn(*declaration);
    }
    const auto* expression = std::get_if<FSyntaxExpr>(&statement.content);
    return expression ? expression->getNames() : QStringList();
}

QString declaredName(const FSyntaxStatement& statement) {
    const auto* declaration = std::get_if<FSyntaxDeclaration>(&statement.content);
    return declaration ? declaration->name : QString();
}

/** The names of the definition and of all that depend on it; none if an object of the area has its name. */
QSet<QString> dependents(const FSyntaxBody& statements, const QString& definition) {
    QHash<QString, QSet<QString>> users;
    for (const FSyntaxStatement& statement : statements) {
        const QString user = declaredName(statement);
        if (user == definition) {
            return {};
        }
        for (const QString& name : user.isEmpty() ? QStringList() : namesIn(statement)) {
            users[name].insert(user);
        }
    }
    QSet<QString> found;
    QStringList next = definition.isEmpty() ? QStringList() : QStringList{definition};
    while (!next.isEmpty()) {
        const QString name = next.takeLast();
        if (!found.contains(name)) {
            found.insert(name);
            next += users.value(name).values();
        }
    }
    return found;
}

}  // namespace

FObjectAreaParts::FObjectAreaParts(FSyntaxBody statements, const QString& definition) {
    const QSet<QString> apart = dependents(statements, definition);
    for (FSyntaxStatement& statement : statements) {
        const QStringList names = namesIn(statement) << declaredName(statement);
        const bool isApart =
            std::any_of(names.begin(), names.end(), [&apart](const QString& name) { return apart.contains(name); });
        (isApart ? dependent : independent).push_back(std::move(statement));
    }
}

QStringList FObjectAreaParts::declaredNames(const FSyntaxBody& statements) {
    QStringList names;
    for (const FSyntaxStatement& statement : statements) {
        if (const QString name = declaredName(statement); !name.isEmpty()) {
            names.append(name);
        }
    }
    return names;
}
