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

FEntryBase* FEntryHolder::findEntry(const QString& name) const {
    const auto found = std::find_if(mEntries.begin(), mEntries.end(), [&name](const FExpr<FEntryBase>& entry) {
        return FEntryBase::of(entry)->getName() == name;
    });
    return found == mEntries.end() ? nullptr : FEntryBase::of(*found);
}

QString FEntryHolder::freeEntryName(const QString& name, const FEntryBase* self) const {
    return uniqueName(legalEntryName(name), [this, self](const QString& candidate) {
        return std::any_of(mEntries.begin(), mEntries.end(), [&](const FExpr<FEntryBase>& entry) {
            return FEntryBase::of(entry) != self && FEntryBase::of(entry)->getName() == candidate;
        });
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
    mLinked.append(entry);
    entry->attach(this);
    changed();
}

bool FEntryHolder::removeEntry(const FExpr<FEntryBase>& entry) {
    if (mEntries.removeAll(entry) == 0) {
        return false;
    }
    linkEntries();
    changed();
    return true;
}

bool FEntryHolder::findAndRemoveEntry(const FExpr<FEntryBase>& entry) {
    return removeEntry(entry) ||
           std::any_of(mEntries.begin(), mEntries.end(),
                       [&entry](const FExpr<FEntryBase>& group) { return group->findAndRemoveEntry(entry); });
}

void FEntryHolder::setEntries(const QList<FExpr<FEntryBase>>& entries) {
    if (entries != mEntries) {
        mEntries = entries;
        linkEntries();
        changed();
    }
}

void FEntryHolder::linkEntries() {
    unlinkEntries();
    for (const FExpr<FEntryBase>& entry : mEntries) {
        entry->attach(this);
    }
    mLinked = mEntries;
    structureChanged();
}

std::size_t FEntryHolder::getEntriesMemory() const {
    std::size_t sum = 0;
    for (const FExpr<FEntryBase>& entry : mEntries) {
        sum += sizeof(FEntryBase) + FEntryBase::of(entry)->getMemory();
    }
    return sum;
}

void FEntryHolder::changed() {
    structureChanged();
    if (const FDefinitionBase* root = getRoot()) {
        root->setOutOfDate(true);
    }
    FHistory::instance()->record(asRecorded());
}
