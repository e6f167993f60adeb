#include "host/design/FEntry.h"

#include "host/core/FHistory.h"
#include "host/core/FString.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntryDef.h"
#include "host/design/FEntryTree.h"
#include "host/design/FEntryValue.h"
#include "host/script/FCmd.h"

#include <QHash>
#include <QSet>

FClassData FEntry::mClass("FEntry", &FEntryBase::mClass, nullptr, &FEntry::fields);

int FEntry::mCount = 0;
quint64 FEntry::mFileNameVersion = 1;

FEntry::FEntry(const QString& name) : FClass(name) {
    ++mCount;
}

FEntry::~FEntry() {
    --mCount;
}

FEntry::FEntry(const FExpr<FEntryDef>& definition, int index)
    : FClass(definition->getName()), mDefinition(definition), mIndex(index) {
    ++mCount;
}

std::vector<std::unique_ptr<FStateField>> FEntry::fields() {
    return FStateFields<FEntry>()
        .member(&FEntry::mDefinition, [](FEntry& entry) { entry.structureChanged(); })
        .member(&FEntry::mIndex, [](FEntry& entry) { entry.structureChanged(); })
        .owned(&FEntry::mValue, [](FEntry&) { ++mFileNameVersion; })
        .take();
}

FEntry* FEntry::create(const QString& name, FEntryHolder* parent, bool initialize) {
    const FEntryHolder* definitions = FEntryTree::definitionsOf(*parent);
    const auto* definition = definitions ? static_cast<FEntryDef*>(definitions->findEntry(name)) : nullptr;
    auto* entry = definition ? new FEntry(FExpr<FEntryDef>(definition), FEntryTree::countOf(*parent, definition))
                             : new FEntry(parent->freeEntryName(name, nullptr));
    const FExpr<FEntryBase> handle(entry);
    if (initialize && definition) {
        FEntryTree().fill(*entry);
    }
    parent->addEntry(handle);
    return entry;
}

void FEntry::setDefinition(const FExpr<FEntryDef>& definition) {
    FHistory::instance()->record(this);
    mDefinition = definition;
    structureChanged();
    setOutOfDate(true);
}

bool FEntry::isGroup() const {
    const FEntryDef* definition = mDefinition.ptr();
    return hasNestedEntries() || (definition && definition->isGroup());
}

QString FEntry::getPathPart() const {
    const FEntryDef* definition = mDefinition.ptr();
    const bool isIndexed = definition && definition->getMaxOccurrences() > 1;
    return isIndexed ? getName() + QLatin1Char('[') + QString::number(mIndex) + QLatin1Char(']') : getName();
}

bool FEntry::setValue(const FExprBase& value) {
    const FExprBase taken = entryValue(value);
    const bool mayHaveGiven = mayGiveFileName();
    FHistory::instance()->record(this);
    if (!mValue.assignFor(this, taken)) {
        FCmd::warnNow(getClass(),
                      QStringLiteral("entry \"%1\" would depend on itself if it were %2")
                          .arg(getFullName(), taken.toHistoryString()),
                      QStringLiteral("Its value stays %1").arg(mValue.toHistoryString()));
        return false;
    }
    if (mayHaveGiven != mayGiveFileName()) {
        ++mFileNameVersion;
    }
    FRecorded::setOutOfDate(true);
    return true;
}

void FEntry::setDefaultValue() {
    setValue(mDefinition ? copyOfValue(mDefinition->getDefaultValue()) : FExprBase());
}

bool FEntry::hasDefaultValue() const {
    return mValue.toHistoryString() == (mDefinition ? mDefinition->getDefaultValue() : FExprBase()).toHistoryString();
}

FObject* FEntry::getValueObject() const {
    update();
    return mResult.getObject();
}

bool FEntry::doUpdate() const {
    mResult = entryValue(FExprBase(valueObject(mValue)));
    return FEntryBase::doUpdate();
}

// An object that is gone, whatever it was, may come back.
bool FEntry::mayGiveFileName() const {
    const FObject* stored = mValue.getStored();
    return stored ? stored->isCmd() || stored->getPrototype() == FFileName::null() : !mValue.isEmpty();
}

void FEntry::reassignEntryDefs() {
    if (mDefinition) {
        reassign(getEntries(), mDefinition->getEntries());
    }
}

void FEntry::reassign(const QList<FExpr<FEntryBase>>& entries, const QList<FExpr<FEntryBase>>& definitions) {
    QSet<const void*> known;
    QHash<QString, FExpr<FEntryBase>> named;
    for (const FExpr<FEntryBase>& definition : definitions) {
        known.insert(definition.identity());
        const QString& name = FEntryBase::of(definition)->getName();
        if (!named.contains(name)) {
            named.insert(name, definition);
        }
    }
    for (const FExpr<FEntryBase>& handle : entries) {
        auto* entry = static_cast<FEntry*>(handle.ptr());
        if (!known.contains(entry->getDefinition().identity())) {
            const auto successor = named.constFind(entry->getName());
            if (successor == named.constEnd()) {
                continue;
            }
            entry->setDefinition(FExpr<FEntryDef>(*successor));
        }
        if (entry->hasNestedEntries()) {
            entry->reassignEntryDefs();
        }
    }
}

void FEntry::followName(const FEntryDef* definition) {
    if (mDefinition.ptr() == definition && getName() != definition->getName()) {
        rename(definition->getName());
    }
    for (const FExpr<FEntryBase>& entry : getEntries()) {
        static_cast<FEntry*>(entry.ptr())->followName(definition);
    }
}

FExpr<FEntryBase> FEntry::copy() const {
    auto* entry = new FEntry(getName());
    const FExpr<FEntryBase> handle(entry);
    entry->mDefinition = mDefinition;
    entry->mIndex = mIndex;
    entry->setValue(copyOfValue(mValue));
    for (const FExpr<FEntryBase>& nested : getEntries()) {
        entry->addEntry(static_cast<const FEntry*>(nested.ptr())->copy());
    }
    return handle;
}
