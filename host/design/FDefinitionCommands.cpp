#include "host/design/FDefinitionCommands.h"

#include "host/core/FPrototypes.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntryDef.h"
#include "host/design/FEntryName.h"
#include "host/design/FEntryTree.h"
#include "host/design/FEntryValue.h"
#include "host/script/FCmd.h"
#include "host/script/FCmdTable.h"

namespace {

FExpr<FDefinition> refuse(const FDefinition& definition, const QString& message) {
    FCmd::warnNow(definition.getClass(), message);
    return {};
}

bool isGiven(const FExpr<FObject>& value) {
    return value && !cmdtype::isScriptNull(value);
}

QString whatIsWrongWithDefault(const FExpr<FObject>& value) {
    const FObject* given = valueObject(value);
    return !isGiven(value) || (given && given->getBlock()->kind == FObjectBlock::Kind::Plain)
               ? QString()
               : QStringLiteral("%1 can't be a default: a default is a number, a text, a truth value or a file")
                     .arg(value.toString());
}

/** The arguments of a new entry that follow its path. */
struct NewEntry {
    FExpr<FObject> value;
    int most;
    int least;
    bool hidden;
    QString description;
    QString type;

    bool hasDefault() const { return isGiven(value); }
    FExprBase valueOrType() const {
        return hasDefault() ? copyOfValue(FExprBase(valueObject(value))) : FExprBase(FPrototypes::find(type));
    }
};

QString whatIsWrong(const NewEntry& entry) {
    if (entry.most < 1 || entry.most > FEntryDef::mostOccurrences || entry.least > entry.most) {
        return QStringLiteral("an entry occurs at least once and at most %1 times, and not less than its least count")
            .arg(FEntryDef::mostOccurrences);
    }
    if (const QString reason = whatIsWrongWithDefault(entry.value); !reason.isEmpty()) {
        return reason;
    }
    if (!entry.type.isEmpty() && !FPrototypes::find(entry.type)) {
        return QStringLiteral("there is no class \"%1\"").arg(entry.type);
    }
    return {};
}

/** The group of those names, made where it is missing; null, with the reason, if a level of it holds a value. */
FEntryHolder* groupOf(FDefinition& definition, const QStringList& names, QString& reason) {
    FEntryHolder* holder = &definition;
    for (const QString& name : names) {
        auto* group = static_cast<FEntryDef*>(holder->findEntry(name));
        if (!group) {
            group = FEntryDef::create(name, holder, 1, 1, false, false, QString(), FExprBase());
        }
        if (!group || !group->isGroup()) {
            reason = QStringLiteral("\"%1\" holds a value and can't be a group").arg(name);
            return nullptr;
        }
        holder = group;
    }
    return holder;
}

/** How often a configuration would have a new entry at least; not counted beyond the most possible. */
int leastOccurrences(const FDefinition& definition, const QStringList& groups, int least) {
    int count = std::max(least, 1);
    const FEntryHolder* holder = &definition;
    for (int i = 0; holder && i < groups.size() && count <= FEntryTree::mostEntries; ++i) {
        const auto* group = static_cast<const FEntryDef*>(holder->findEntry(groups[i]));
        count *= group ? std::max(group->getMinOccurrences(), 1) : 1;
        holder = group;
    }
    return count;
}

FExpr<FDefinition> addEntry(FDefinition& definition, const QString& path, const FExpr<FObject>& value, int most,
                            int least, bool hidden, const QString& description, const QString& type) {
    const NewEntry entry{value, most, least < 0 ? most : least, hidden, description, type};
    QString reason = whatIsWrong(entry);
    QStringList names = reason.isEmpty() ? splitEntryPath(path, reason) : QStringList();
    if (names.isEmpty()) {
        return refuse(definition, reason);
    }
    if (definition.getEntryOfScope(path)) {
        return refuse(definition, QStringLiteral("%1 has an entry \"%2\" already").arg(definition.getName(), path));
    }
    const QString name = names.takeLast();
    if (leastOccurrences(definition, names, entry.least) > FEntryTree::mostEntries) {
        return refuse(definition,
                      QStringLiteral("\"%1\" would occur more than %2 times, which is the most of a configuration; "
                                     "lower the counts of its groups")
                          .arg(path, QString::number(FEntryTree::mostEntries)));
    }
    FEntryHolder* holder = groupOf(definition, names, reason);
    if (!holder) {
        return refuse(definition, reason);
    }
    FEntryDef::create(name, holder, entry.least, most, hidden, entry.hasDefault(), description, entry.valueOrType());
    return FExpr<FDefinition>(&definition);
}

FEntryDef* knownEntry(const FDefinition& definition, const QString& path) {
    FEntryBase* entry = definition.getEntryOfScope(path);
    if (!entry) {
        definition.warnUnknownEntry(path);
    }
    return static_cast<FEntryDef*>(entry);
}

FExpr<FDefinition> removeEntry(FDefinition& definition, const QString& path) {
    const FExpr<FEntryBase> entry(knownEntry(definition, path));
    if (!entry) {
        return {};
    }
    definition.findAndRemoveEntry(entry);
    definition.reinitConfigurations(false);
    return FExpr<FDefinition>(&definition);
}

FExpr<FDefinition> renameEntry(FDefinition& definition, const QString& path, const QString& name) {
    FEntryDef* entry = knownEntry(definition, path);
    if (!entry) {
        return {};
    }
    if (!isEntryName(name)) {
        return refuse(definition,
                      QStringLiteral("\"%1\" can't be the name of an entry; a name isn't empty and holds no | [ ] < > "
                                     "and no line end")
                          .arg(name));
    }
    const FEntryBase* other = entry->getHolder()->findEntry(name);
    if (other && other != entry) {
        return refuse(definition,
                      QStringLiteral("%1 has an entry \"%2\" already").arg(definition.getName(), other->getFullName()));
    }
    entry->setName(name);
    return FExpr<FDefinition>(&definition);
}

FExpr<FDefinition> setEntryDefault(FDefinition& definition, const QString& path, const FExpr<FObject>& value) {
    FEntryDef* entry = knownEntry(definition, path);
    if (!entry) {
        return {};
    }
    if (entry->isGroup()) {
        return refuse(definition, QStringLiteral("\"%1\" is a group, which has no default").arg(path));
    }
    if (const QString reason = whatIsWrongWithDefault(value); !reason.isEmpty()) {
        return refuse(definition, reason);
    }
    entry->setDefaultValue(isGiven(value) ? copyOfValue(FExprBase(valueObject(value))) : FExprBase());
    return FExpr<FDefinition>(&definition);
}

QStringList getEntryNames(const FDefinition& definition) {
    QStringList paths;
    for (const FExpr<FEntryBase>& entry : definition.getEntries()) {
        paths += static_cast<const FEntryDef*>(entry.ptr())->getLeafPaths();
    }
    return paths;
}

}  // namespace

void definitionCommands(FCmdTable& table) {
    table
        .member<FDefinition>(
            "addEntry", &addEntry,
            {"path", "default", "count=1", "leastCount=-1", "hidden=false", "description=\"\"", "type=\"\""})
        .data();
    table.member<FDefinition>("removeEntry", &removeEntry, {"path"});
    table.member<FDefinition>("renameEntry", &renameEntry, {"path", "newName"});
    table.member<FDefinition>("setEntryDefault", &setEntryDefault, {"path", "default"});
    table.member<FDefinition>("getEntryNames", &getEntryNames).query();
}
