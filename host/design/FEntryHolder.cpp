#include "host/design/FEntryHolder.h"

#include "host/core/FHistory.h"
#include "host/core/FObjectName.h"
#include "host/design/FDefinitionBase.h"
#include "host/design/FEntryBase.h"
#include "host/design/FEntryName.h"

#include <algorithm>

quint64 FEntryHolder::mStructureVersion = 1;

FEntryHolder::~FEntryHolder() {
    unlinkEntries();
}

void FEntryHolder::unlinkEntries() {
    for (const FExpr<FEntryBase>& entry : mLinked) {
        // One that has moved on knows its new holder already.
        if (entry->mpHolder == this) {
            entry->mpHolder = nullptr;
        }
    }
}

QString FEntryHolder::freeEntryName(const QString& name, const FEntryBase* self) const {
    return uniqueName(legalEntryName(name), [this, self](const QString& candidate) {
        const FEntryBase* first = findEntry(candidate);
        const bool isOther = first && first != self;
        return isOther || (first && std::any_of(getEntries().begin(), getEntries().end(), [&](const auto& entry) {
                               return FEntryBase::of(entry) != self && FEntryBase::of(entry)->getName() == candidate;
                           }));
    });
}

// Such an entry would hold itself.
bool FEntryHolder::standsIn(const FEntryBase* entry) const {
    const FEntryHolder* holder = this;
    while (const auto* group = dynamic_cast<const FEntryBase*>(holder)) {
        if (group == entry) {
            return true;
        }
        holder = group->getHolder();
    }
    return false;
}

void FEntryHolder::addEntry(const FExpr<FEntryBase>& entry) {
    if (!entry || entry->getHolder() || standsIn(entry.ptr())) {
        return;
    }
    mEntries.append(entry);
    mState = mEntries.getSnapshot();
    mLinked.append(entry);
    entry->attach(this);
    changed();
}

bool FEntryHolder::removeEntry(const FExpr<FEntryBase>& entry) {
    QList<FExpr<FEntryBase>> rest = getEntries();
    if (rest.removeAll(entry) == 0) {
        return false;
    }
    replaceEntries(rest);
    changed();
    return true;
}

bool FEntryHolder::findAndRemoveEntry(const FExpr<FEntryBase>& entry) {
    return removeEntry(entry) ||
           std::any_of(getEntries().begin(), getEntries().end(),
                       [&entry](const FExpr<FEntryBase>& group) { return group->findAndRemoveEntry(entry); });
}

void FEntryHolder::setEntries(const QList<FExpr<FEntryBase>>& entries) {
    if (entries != getEntries()) {
        replaceEntries(entries);
        changed();
    }
}

void FEntryHolder::restoreEntries() {
    replaceEntries(mState.getEntries());
}

void FEntryHolder::replaceEntries(const QList<FExpr<FEntryBase>>& entries) {
    unlinkEntries();
    mEntries.replace(entries);
    mState = mEntries.getSnapshot();
    for (const FExpr<FEntryBase>& entry : entries) {
        entry->attach(this);
    }
    mLinked = entries;
    structureChanged();
}

std::size_t FEntryHolder::getEntriesMemory() const {
    std::size_t sum = 0;
    for (const FExpr<FEntryBase>& entry : getEntries()) {
        sum += sizeof(FEntryBase) + FEntryBase::of(entry)->getMemory();
    }
    return sum;
}

void FEntryHolder::structureChanged() {
    ++mStructureVersion;
    if (FDefinitionBase* root = getRoot()) {
        root->noteStructureChange();
    }
}

void FEntryHolder::entryRenamed() {
    mEntries.forgetNames();
    structureChanged();
}

void FEntryHolder::changed() {
    structureChanged();
    if (const FDefinitionBase* root = getRoot()) {
        root->setOutOfDate(true);
    }
    FHistory::instance()->record(asRecorded());
}
