#include "host/core/FSelectionSet.h"

#include "host/core/FChanges.h"
#include "host/core/FManaged.h"

#include <QSet>

#include <algorithm>

FSelectionSet* FSelectionSet::instance() {
    // Never destroyed: it holds handles on objects of libraries that may be unloaded earlier.
    static auto* selection = new FSelectionSet;
    return selection;
}

FSelectionSet::FSelectionSet() {
    connect(FChanges::instance(), &FChanges::objectLeft, this, [this](FManaged* object) { remove(object); });
}

// Compares control blocks, because a temporary handle could be the last one and delete the object.
bool FSelectionSet::contains(const FObject* object) const {
    return object && std::any_of(mObjects.begin(), mObjects.end(), [object](const FExprBase& selected) {
               return selected.identity() == object->getBlock();
           });
}

FExpr<FObjectList> FSelectionSet::toList() const {
    FExpr<FObjectList> list(new FObjectList);
    list->setObjects({mObjects.begin(), mObjects.end()});
    list->setAsSelectionSet(true);
    return list;
}

void FSelectionSet::set(const QList<FExpr<FObject>>& objects, bool notify) {
    QList<FExpr<FObject>> selected;
    QSet<FExprBase> seen;
    for (const FExpr<FObject>& object : objects) {
        if (object && !seen.contains(object)) {
            seen.insert(object);
            selected.append(object);
        }
    }
    replace(selected, notify);
}

void FSelectionSet::remove(const FObject* object, bool notify) {
    if (!contains(object)) {
        return;
    }
    QList<FExpr<FObject>> rest;
    std::copy_if(mObjects.begin(), mObjects.end(), std::back_inserter(rest),
                 [object](const FExprBase& selected) { return selected.identity() != object->getBlock(); });
    replace(rest, notify);
}

void FSelectionSet::replace(QList<FExpr<FObject>> objects, bool notify) {
    if (objects == mObjects) {
        return;
    }
    mObjects = std::move(objects);
    mReplaced.request();
    if (notify) {
        emit changed();
    }
}
