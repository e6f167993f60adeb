#include "host/design/FDefinitionBase.h"

#include "host/script/FCmd.h"
#include "host/script/FCmdManager.h"

#include <algorithm>

FClassData FDefinitionBase::mClass("FDefinitionBase", &FEntity::mClass, nullptr, &FDefinitionBase::fields);

namespace {

void collect(const FEntryHolder& holder, const QString& front, QMap<QString, FExpr<FEntryBase>>& map) {
    for (const FExpr<FEntryBase>& entry : holder.getEntries()) {
        const FEntryBase& object = *FEntryBase::of(entry);
        const QString path = front + object.getPathPart();
        if (object.isGroup()) {
            collect(object, path + QLatin1Char('|'), map);
        } else if (!map.contains(path)) {
            map.insert(path, entry);
        }
    }
}

FEntryBase* entryOfPart(const FEntryHolder& holder, const QString& part) {
    FEntryBase* named = holder.findEntry(part);
    if (named && named->getPathPart() == part) {
        return named;
    }
    // With an index, it isn't a name.
    if (!part.endsWith(QLatin1Char(']'))) {
        return nullptr;
    }
    const auto& entries = holder.getEntries();
    const auto found = std::find_if(entries.begin(), entries.end(), [&part](const FExpr<FEntryBase>& entry) {
        return FEntryBase::of(entry)->getPathPart() == part;
    });
    return found == entries.end() ? nullptr : FEntryBase::of(*found);
}

}  // namespace

std::vector<std::unique_ptr<FStateField>> FDefinitionBase::fields() {
    using Entries = FEntryList::Snapshot;
    return FStateFields<FDefinitionBase>()
        .value<Entries>([](FDefinitionBase& base) -> Entries& { return base.mState; },
                        [](FDefinitionBase& base) { base.restoreEntries(); })
        .take();
}

FDefinitionBase::FDefinitionBase(const QString& name) : FClass(name) {
    if (!isInitializingPrototype()) {
        mStructure = FExprBase(new FObject);
    }
}

void FDefinitionBase::setOutOfDate(bool outOfDate) const {
    FEntity::setOutOfDate(outOfDate);
    if (const FObject* structure = mStructure.getStored()) {
        structure->setOutOfDate(outOfDate);
    }
}

void FDefinitionBase::tellGone() const {
    FEntity::tellGone();
    mStructure.getStored()->setOutOfDate(true);
}

// The values may name this object, and so keep what keeps them.
void FDefinitionBase::letGo() {
    mState = {};
    restoreEntries();
    mEntryMap.clear();
}

const QMap<QString, FExpr<FEntryBase>>& FDefinitionBase::getEntryMap() const {
    if (mMapVersion != getStructureVersion()) {
        mEntryMap.clear();
        collect(*this, QString(), mEntryMap);
        mMapVersion = getStructureVersion();
        static quint64 maps = 0;
        mMapNumber = ++maps;
    }
    return mEntryMap;
}

quint64 FDefinitionBase::getEntryMapNumber() const {
    getEntryMap();
    return mMapNumber;
}

FEntryBase* FDefinitionBase::getEntryOfScope(const QString& path) const {
    const FEntryHolder* holder = this;
    FEntryBase* group = nullptr;
    for (const QString& part : path.split(QLatin1Char('|'))) {
        group = holder ? entryOfPart(*holder, part) : nullptr;
        holder = group;
    }
    return group;
}

void FDefinitionBase::warnUnknownEntry(const QString& path) const {
    const QString hint = didYouMean(path, QStringList(getEntryMap().keys()));
    FCmd::warnNow(getClass(), QStringLiteral("%1 has no entry \"%2\"%3").arg(getName(), path, hint));
}
