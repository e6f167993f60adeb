#include "host/design/FEntryTree.h"

#include "host/design/FConfiguration.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntry.h"
#include "host/design/FEntryDef.h"
#include "host/script/FCmd.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

FEntry* asEntry(const FExpr<FEntryBase>& entry) {
    return static_cast<FEntry*>(FEntryBase::of(entry));
}

FEntryDef* asDefinition(const FExpr<FEntryBase>& entry) {
    return static_cast<FEntryDef*>(FEntryBase::of(entry));
}

/** An optional entry is there, too: what isn't wanted can be left without a value. */
int leastCount(const FEntryDef& definition) {
    return std::max(definition.getMinOccurrences(), 1);
}

/** One level of a path: the name, and the index, or -1. */
struct PathPart {
    explicit PathPart(const QString& part) : name(part) {
        const int bracket = part.lastIndexOf(QLatin1Char('['));
        if (bracket >= 0 && part.endsWith(QLatin1Char(']'))) {
            bool isNumber = false;
            const int number = part.mid(bracket + 1, part.size() - bracket - 2).toInt(&isNumber);
            name = part.left(bracket);
            index = isNumber ? number : -1;
        }
    }
    QString name;
    int index = -1;
};

int countBelow(const FEntryHolder& entries) {
    int count = entries.getEntries().size();
    for (const FExpr<FEntryBase>& entry : entries.getEntries()) {
        count += countBelow(*asEntry(entry));
    }
    return count;
}

/** The entries that a definition makes in its holder, with all below them; not counted beyond the most possible. */
qint64 countMadeBy(const FEntryDef& definition) {
    qint64 each = 1;
    for (const FExpr<FEntryBase>& nested : definition.getEntries()) {
        each = std::min<qint64>(each + countMadeBy(*asDefinition(nested)), FEntryTree::mostEntries + 1);
    }
    return each * leastCount(definition);
}

/** The holders in a configuration that follow a definition or a group of it. */
QList<FEntryHolder*> followersOf(const FEntryHolder& definitions, FConfiguration& configuration) {
    const auto* group = dynamic_cast<const FEntryDef*>(&definitions);
    if (!group) {
        return {&configuration};
    }
    QList<FEntryHolder*> found;
    for (const FEntryHolder* holder : followersOf(*group->getHolder(), configuration)) {
        auto* first = static_cast<FEntry*>(holder->findEntry(group->getName()));
        if (first && group->getMaxOccurrences() == 1 && first->getDefinition().ptr() == group) {
            found.append(first);
            continue;
        }
        for (const FExpr<FEntryBase>& entry : holder->getEntries()) {
            if (asEntry(entry)->getDefinition().ptr() == group) {
                found.append(asEntry(entry));
            }
        }
    }
    return found;
}

}  // namespace

bool FEntryTree::append(FConfiguration& configuration, const FEntryDef& added) {
    const QList<FEntryHolder*> holders = followersOf(*added.getHolder(), configuration);
    // Counting those of the configuration alone would take a look at all.
    if (FEntry::getCount() + holders.size() * countMadeBy(added) > mostEntries) {
        return false;
    }
    for (FEntryHolder* holder : holders) {
        for (int index = 0; index < leastCount(added); ++index) {
            auto* entry = new FEntry(FExpr<FEntryDef>(&added), index);
            const FExpr<FEntryBase> handle(entry);
            fill(*entry);
            holder->addEntry(handle);
        }
    }
    return true;
}

void FEntryTree::appendOthers(const Entries& present, Entries& list) {
    QSet<const void*> taken;
    for (const FExpr<FEntryBase>& entry : list) {
        taken.insert(entry.identity());
    }
    for (const FExpr<FEntryBase>& entry : present) {
        if (!taken.contains(entry.identity())) {
            list.append(entry);
        }
    }
}

const FEntryHolder* FEntryTree::definitionsOf(const FEntryHolder& entries) {
    if (const auto* configuration = dynamic_cast<const FConfiguration*>(&entries)) {
        return configuration->getDefinition().ptr();
    }
    const auto* group = dynamic_cast<const FEntry*>(&entries);
    return group ? group->getDefinition().ptr() : nullptr;
}

int FEntryTree::countOf(const FEntryHolder& entries, const FEntryDef* definition) {
    const auto& list = entries.getEntries();
    return static_cast<int>(std::count_if(list.begin(), list.end(), [definition](const FExpr<FEntryBase>& entry) {
        return asEntry(entry)->getDefinition().ptr() == definition;
    }));
}

bool FEntryTree::mayMakeOneMore(const FEntryDef& definition) {
    if (++mCount <= mostEntries && FEntry::getCount() < mostInAll) {
        return true;
    }
    if (!mStopped) {
        const bool isOwn = mCount > mostEntries;
        FCmd::warnNow(QStringLiteral("FConfiguration"),
                      QStringLiteral("the counts of its entries would make more than %1 entries in %2; stopped at "
                                     "\"%3\"")
                          .arg(isOwn ? mostEntries : mostInAll)
                          .arg(isOwn ? QStringLiteral("a configuration") : QStringLiteral("all configurations"),
                               definition.getFullName()),
                      QStringLiteral("Lower the counts"));
    }
    mStopped = true;
    return false;
}

void FEntryTree::fill(FEntry& entry) {
    const FEntryDef* definition = entry.getDefinition().ptr();
    if (definition && definition->isGroup()) {
        followLevel(entry, *definition, false);
    } else {
        entry.setDefaultValue();
    }
}

void FEntryTree::follow(FEntryHolder& entries, const FEntryHolder& definitions, bool reset) {
    mCount = countBelow(entries);
    followLevel(entries, definitions, reset);
}

void FEntryTree::followLevel(FEntryHolder& entries, const FEntryHolder& definitions, bool reset) {
    const Entries list = wanted(entries, definitions, reset);
    for (const FExpr<FEntryBase>& handle : list) {
        FEntry& entry = *asEntry(handle);
        if (entry.getHolder() != &entries) {
            continue;  // new, and filled already
        }
        if (entry.isGroup() && entry.getDefinition()) {
            followLevel(entry, *entry.getDefinition().ptr(), reset);
        } else if (reset && !entry.hasDefaultValue()) {
            entry.setDefaultValue();
        }
    }
    entries.setEntries(list);
}

// Present entries are mostly in the order of their definitions; only where they aren't, they are looked up.
FEntryTree::Entries FEntryTree::wanted(const FEntryHolder& entries, const FEntryHolder& definitions, bool reset) {
    const Entries& present = entries.getEntries();
    QHash<const void*, Entries> rest;
    Entries list;
    int next = 0;
    for (const FExpr<FEntryBase>& handle : definitions.getEntries()) {
        const int first = next;
        while (next < present.size() && asEntry(present[next])->getDefinition() == handle) {
            ++next;
        }
        if (next > first || next == present.size()) {
            addOccurrences(*asDefinition(handle), present, {first, next}, reset, list);
            continue;
        }
        if (rest.isEmpty()) {
            for (int i = next; i < present.size(); ++i) {
                rest[asEntry(present[i])->getDefinition().identity()].append(present[i]);
            }
        }
        const Entries own = rest.value(handle.identity());
        addOccurrences(*asDefinition(handle), own, {0, own.size()}, reset, list);
    }
    if (mKeepsOthers) {
        appendOthers(present, list);
    }
    return list;
}

void FEntryTree::addOccurrences(FEntryDef& definition, const Entries& present, Range own, bool reset, Entries& list) {
    const int most = reset ? leastCount(definition) : definition.getMaxOccurrences();
    const int kept = std::min(own.end - own.begin, most);
    for (int i = 0; i < kept; ++i) {
        list.append(present[own.begin + i]);
    }
    for (int index = kept; index < leastCount(definition) && mayMakeOneMore(definition); ++index) {
        auto* entry = new FEntry(FExpr<FEntryDef>(&definition), index);
        list.append(FExpr<FEntryBase>(entry));
        fill(*entry);
    }
}

FEntry* FEntryTree::makeOccurrence(FConfiguration& configuration, const QString& path) {
    const FDefinition* definition = configuration.getDefinition().ptr();
    QStringList names;
    for (const QString& level : path.split(QLatin1Char('|'))) {
        names.append(PathPart(level).name);
    }
    const FEntryBase* leaf = definition ? definition->getEntryOfScope(names.join(QLatin1Char('|'))) : nullptr;
    if (!leaf || leaf->isGroup()) {
        return nullptr;
    }
    FEntryHolder* holder = &configuration;
    FEntry* entry = nullptr;
    for (const QString& level : path.split(QLatin1Char('|'))) {
        entry = holder ? occurrence(*holder, level) : nullptr;
        holder = entry;
    }
    return entry;
}

FEntry* FEntryTree::occurrence(FEntryHolder& holder, const QString& level) {
    const Entries& present = holder.getEntries();
    const auto isWanted = [&level](const FExpr<FEntryBase>& entry) { return entry->getPathPart() == level; };
    const auto found = std::find_if(present.begin(), present.end(), isWanted);
    if (found != present.end()) {
        return asEntry(*found);
    }
    const PathPart part(level);
    const FEntryHolder* definitions = definitionsOf(holder);
    auto* definition = definitions ? static_cast<FEntryDef*>(definitions->findEntry(part.name)) : nullptr;
    if (!definition || part.index < 0 || part.index >= definition->getMaxOccurrences()) {
        return nullptr;
    }
    return addOccurrencesUpTo(holder, *definition, part.index);
}

FEntry* FEntryTree::addOccurrence(FEntryHolder& holder, FEntryDef& definition) {
    const int next = countOf(holder, &definition);
    return next < definition.getMaxOccurrences() ? addOccurrencesUpTo(holder, definition, next) : nullptr;
}

FEntry* FEntryTree::addOccurrencesUpTo(FEntryHolder& holder, FEntryDef& definition, int last) {
    Entries list = holder.getEntries();
    const auto isOwn = [&definition](const FExpr<FEntryBase>& entry) {
        return asEntry(entry)->getDefinition().ptr() == &definition;
    };
    int position = static_cast<int>(std::find_if(list.rbegin(), list.rend(), isOwn).base() - list.begin());
    FEntry* entry = nullptr;
    for (int index = countOf(holder, &definition); index <= last; ++index) {
        if (!mayMakeOneMore(definition)) {
            return nullptr;
        }
        entry = new FEntry(FExpr<FEntryDef>(&definition), index);
        list.insert(position++, FExpr<FEntryBase>(entry));
        fill(*entry);
    }
    holder.setEntries(list);
    return entry;
}
