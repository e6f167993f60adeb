#include "host/core/FObjectManager.h"

#include "host/core/FManaged.h"
#include "host/core/FObjectName.h"

#include <algorithm>

FObjectManager* FObjectManager::instance() {
    // Never destroyed, like the objects that it knows.
    static auto* manager = new FObjectManager;
    return manager;
}

FManaged* FObjectManager::find(const QString& name) const {
    return mByName.value(name);
}

QStringList FObjectManager::getNames() const {
    QStringList names = mByName.keys();
    std::sort(names.begin(), names.end());
    return names;
}

QList<FManaged*> FObjectManager::getManaged(const FObject* prototype, const QString& name, bool exactClass) const {
    QList<FManaged*> found;
    for (FManaged* object : mById) {
        const bool ofClass = exactClass ? object->getPrototype() == prototype : object->isTypeOf(prototype);
        if (ofClass && (name.isEmpty() || object->getName() == name)) {
            found.append(object);
        }
    }
    return found;
}

QList<FManaged*> FObjectManager::getChildrenOf(const FObject* parent) const {
    QList<FManaged*> found;
    const auto* managed = dynamic_cast<const FManaged*>(parent);
    // Children are younger than their parent.
    for (auto object = mById.upperBound(managed ? managed->getDbId() : 0); parent && object != mById.end(); ++object) {
        if ((*object)->getParent() == parent) {
            found.append(*object);
        }
    }
    return found;
}

QString FObjectManager::uniqueName(const QString& name, const FManaged* self) const {
    if (contains(self)) {
        return ::uniqueName(name, [this, self](const QString& candidate) {
            const FManaged* owner = find(candidate);
            return owner && owner != self;
        });
    }
    // Thousands of objects of one name would otherwise try each other's suffixes.
    int number = find(name) ? mNextSuffix.value(name, 1) : 0;
    while (find(numberedName(name, number))) {
        ++number;
    }
    mNextSuffix.insert(name, number);
    return numberedName(name, number);
}

void FObjectManager::emitNameChanged(const FObject* prototype, const QString& name, int id) {
    emit nameChanged(prototype, name, id);
}

void FObjectManager::enter(FManaged* object) {
    mById.insert(object->getDbId(), object);
    mByName.insert(object->getName(), object);
    mKnown.insert(object);
}

void FObjectManager::leave(FManaged* object, const QString& name) {
    mById.remove(object->getDbId());
    mByName.remove(name, object);
    mKnown.remove(object);
    mNextSuffix.clear();
}

void FObjectManager::rename(FManaged* object, const QString& from, const QString& to) {
    mByName.remove(from, object);
    mByName.insert(to, object);
    mNextSuffix.clear();
}

void FObjectManager::renumber(FManaged* object, int from, int to) {
    mById.remove(from);
    mById.insert(to, object);
    mLastId = std::max(mLastId, to);
}
