#include "host/design/FEntryList.h"

#include "host/design/FEntryBase.h"

FEntryList::Entries FEntryList::Snapshot::getEntries() const {
    if (!mStretch) {
        return {};
    }
    const Entries& entries = mStretch->live ? mStretch->live->mEntries : mStretch->entries;
    return mSize == entries.size() ? entries : entries.mid(0, mSize);
}

std::size_t FEntryList::Snapshot::heldMemory() const {
    std::size_t sum = sizeof(Snapshot);
    if (!mStretch || mStretch->live) {
        return sum;
    }
    for (const FExpr<FEntryBase>& handle : getEntries()) {
        const FEntryBase* entry = FEntryBase::of(handle);
        sum += entry->isRecorded() ? 0 : entry->getMemory();
    }
    return sum;
}

FEntryList::FEntryList() : mStretch(std::make_shared<Stretch>()) {
    mStretch->live = this;
}

FEntryList::~FEntryList() {
    endStretch();
}

void FEntryList::endStretch() {
    mStretch->entries = mEntries;
    mStretch->live = nullptr;
}

void FEntryList::append(const FExpr<FEntryBase>& entry) {
    mEntries.append(entry);
    FEntryBase* added = FEntryBase::of(entry);
    if (!mByName.isEmpty() && !mByName.contains(added->getName())) {
        mByName.insert(added->getName(), added);
    }
}

void FEntryList::replace(const Entries& entries) {
    endStretch();
    mStretch = std::make_shared<Stretch>();
    mStretch->live = this;
    mEntries = entries;
    forgetNames();
}

FEntryList::Snapshot FEntryList::getSnapshot() const {
    Snapshot snapshot;
    snapshot.mStretch = mStretch;
    snapshot.mSize = mEntries.size();
    return snapshot;
}

FEntryBase* FEntryList::find(const QString& name) const {
    if (mByName.isEmpty()) {
        for (auto handle = mEntries.rbegin(); handle != mEntries.rend(); ++handle) {
            FEntryBase* entry = FEntryBase::of(*handle);
            mByName.insert(entry->getName(), entry);
        }
    }
    return mByName.value(name);
}
