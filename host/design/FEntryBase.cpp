#include "host/design/FEntryBase.h"

#include "host/core/FHistory.h"
#include "host/design/FDefinitionBase.h"

FClassData FEntryBase::mClass("FEntryBase", &FObject::mClass, nullptr, &FEntryBase::fields);

std::vector<std::unique_ptr<FStateField>> FEntryBase::fields() {
    using Entries = FEntryList::Snapshot;
    return FStateFields<FEntryBase>()
        .member(&FEntryBase::mName, [](FEntryBase& entry) { entry.nameChanged(); })
        .value<Entries>([](FEntryBase& group) -> Entries& { return group.mState; },
                        [](FEntryBase& group) { group.restoreEntries(); })
        .take();
}

QString FEntryBase::getFullName() const {
    QString path = getPathPart();
    for (const FEntryBase* group = getParent(); group; group = group->getParent()) {
        path.prepend(group->getPathPart() + QLatin1Char('|'));
    }
    return path;
}

bool FEntryBase::isRecorded() const {
    const FDefinitionBase* root = getRoot();
    return root && root->isInModel();
}

FManaged* FEntryBase::getOwner() const {
    return getRoot();
}

void FEntryBase::setOutOfDate(bool outOfDate) const {
    FRecorded::setOutOfDate(outOfDate);
    const FDefinitionBase* root = outOfDate ? getRoot() : nullptr;
    if (root) {
        root->getStructure().getStored()->setOutOfDate(true);
    }
}

FObject* FEntryBase::getWhole() const {
    return getRoot();
}

void FEntryBase::rename(const QString& name) {
    FHistory::instance()->record(this);
    mName = name;
    nameChanged();
    setOutOfDate(true);
}

void FEntryBase::nameChanged() {
    if (mpHolder) {
        mpHolder->entryRenamed();
    }
}

void FEntryBase::attach(FEntryHolder* holder) {
    mpHolder = holder;
    if (!hasKnownState()) {
        rememberState();
    }
}
