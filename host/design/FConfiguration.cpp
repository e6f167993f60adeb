#include "host/design/FConfiguration.h"

#include "host/core/FQuotedText.h"
#include "host/design/FEntryDef.h"
#include "host/design/FEntryTree.h"
#include "host/design/FEntryValue.h"
#include "host/script/FCmdTable.h"

namespace {

FEntry* asEntry(const FExpr<FEntryBase>& entry) {
    return static_cast<FEntry*>(entry.ptr());
}

FExpr<FConfiguration> setEntryValue(FConfiguration& configuration, const QString& path, const FKeptExpression& value) {
    const bool done = configuration.setEntryValue(path, copyOfValue(value.expression));
    return FExpr<FConfiguration>(done ? &configuration : nullptr);
}

FExpr<FObject> getEntryValue(const FConfiguration& configuration, const QString& path) {
    const FEntry* entry = configuration.getValueEntry(path);
    if (!entry) {
        configuration.warnUnknownEntry(path);
    }
    return FExpr<FObject>(entry ? entry->getValueObject() : nullptr);
}

void commands(FCmdTable& table) {
    table.member<FConfiguration>("setEntryValue", &setEntryValue, {"path", "value"}).data();
    table.member<FConfiguration>("getEntryValue", &getEntryValue, {"path"})
        .query()
        .readFrom<FConfiguration>(&FConfiguration::getSources);
}

/** Whether an entry is there beyond the least number of its definition, so that a saved text has to bring it. */
bool isFurther(const FEntry& entry) {
    const FEntryDef* definition = entry.getDefinition().ptr();
    return definition && entry.getIndex() > 0 && entry.getIndex() >= definition->getMinOccurrences();
}

void collectCommands(const FEntryHolder& holder, bool all, QStringList& commands) {
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        const FEntry& entry = *asEntry(handle);
        const bool isGiven = all || isFurther(entry);
        if (entry.isGroup()) {
            collectCommands(entry, isGiven, commands);
        } else if (isGiven || !entry.hasDefaultValue()) {
            commands.append(QStringLiteral("setEntryValue(") + quoteText(entry.getFullName()) + QLatin1Char(',') +
                            entry.getValue().toHistoryString() + QLatin1Char(')'));
        }
    }
}

void collectEntries(const FEntryHolder& holder, const FObject* prototype, bool byValue, QList<FExpr<FEntry>>& found) {
    for (const FExpr<FEntryBase>& handle : holder.getEntries()) {
        const FEntry& entry = *asEntry(handle);
        const FEntryDef* definition = entry.getDefinition().ptr();
        const FObject* declared = definition ? definition->getType() : nullptr;
        const FObject* type = byValue ? typeOfValue(entry.getValue()) : declared;
        if (type && type->isTypeOf(prototype)) {
            found.append(FExpr<FEntry>(&entry));
        }
        collectEntries(entry, prototype, byValue, found);
    }
}

}  // namespace

FClassData FConfiguration::mClass("FConfiguration", &FDefinitionBase::mClass, &commands, &FConfiguration::fields);

std::vector<std::unique_ptr<FStateField>> FConfiguration::fields() {
    return FStateFields<FConfiguration>().linked(&FConfiguration::mDefinition).take();
}

void FConfiguration::setDefinition(const FExpr<FDefinition>& definition) {
    recordChange();
    mDefinition.unregisterClient(this);
    mDefinition = definition;
    mDefinition.registerClient(this);
    setOutOfDate(true);
    reinit(false);
}

void FConfiguration::reinit(bool reset) {
    if (const FDefinition* definition = mDefinition.ptr()) {
        FEntryTree tree;
        tree.follow(*this, *definition, reset);
        mFollowed = tree.hasStopped() ? Versions() : Versions{definition->getVersion(), getVersion()};
    } else {
        setEntries({});
    }
}

bool FConfiguration::followAddition(const FEntryDef& added, quint64 before) {
    const bool isFollowed =
        mFollowed.definition == before && mFollowed.own == getVersion() && FEntryTree().append(*this, added);
    mFollowed = isFollowed ? Versions{mDefinition->getVersion(), getVersion()} : Versions();
    return isFollowed;
}

void FConfiguration::takeNewEntries() {
    if (const FDefinition* definition = mDefinition.ptr()) {
        FEntryTree(true).follow(*this, *definition, false);
    }
    mFollowed = {};
}

void FConfiguration::renameEntries(const FEntryDef* definition) {
    for (const FExpr<FEntryBase>& entry : getEntries()) {
        asEntry(entry)->followName(definition);
    }
}

QList<FExpr<FEntry>> FConfiguration::getEntry(const FObject* prototype, bool byValue) const {
    QList<FExpr<FEntry>> found;
    collectEntries(*this, prototype, byValue, found);
    return found;
}

FEntry* FConfiguration::getValueEntry(const QString& path) const {
    const auto found = getEntryMap().constFind(path);
    return found == getEntryMap().constEnd() ? nullptr : asEntry(*found);
}

std::vector<FExprBase> FConfiguration::getSources(const QString& path) const {
    return {FExprBase(getValueEntry(path)), getStructure()};
}

bool FConfiguration::setEntryValue(const QString& path, const FExprBase& value) {
    FEntry* entry = getValueEntry(path);
    if (!entry) {
        entry = FEntryTree().makeOccurrence(*this, path);
    }
    if (!entry) {
        warnUnknownEntry(path);
    }
    return entry && entry->setValue(value);
}

QStringList FConfiguration::furtherSavedCommands() const {
    QStringList commands;
    // Without its definition there would be no entries for the values when they are read.
    if (mDefinition) {
        collectCommands(*this, false, commands);
    }
    return commands;
}

void FConfiguration::init(const FConfiguration* other) {
    if (!other) {
        return;
    }
    FDefinitionBase::init(other);
    mDefinition.unregisterClient(this);
    mDefinition = other->mDefinition;
    mDefinition.registerClient(this);
    QList<FExpr<FEntryBase>> copies;
    for (const FExpr<FEntryBase>& entry : other->getEntries()) {
        copies.append(asEntry(entry)->copy());
    }
    setEntries(copies);
}
