#include "genericintegration/connector/layout/FItemDifference.h"

#include <QHash>

namespace {

bool fits(const FItemDifference::Row& object, const FItemDifference::Row& item) {
    return !object.valueType || !item.valueType || object.valueType == item.valueType;
}

}  // namespace

FItemDifference::FItemDifference(const QVector<Row>& objects, const QVector<Row>& items) {
    constexpr int none = -1;
    // The items of an object form a chain: its first one, and for each item the next one.
    QHash<const FObject*, int> first;
    QVector<int> next(items.size(), none);
    for (int item = items.size() - 1; item >= 0; --item) {
        next[item] = first.value(items[item].object, none);
        first[items[item].object] = item;
    }
    QVector<bool> isKept(items.size(), false);
    for (int object = 0; object < objects.size(); ++object) {
        const int item = first.value(objects[object].object, none);
        if (item == none || !fits(objects[object], items[item])) {
            mObjectsToAdd.append(object);
            continue;
        }
        isKept[item] = true;
        first[items[item].object] = next[item];
    }
    for (int item = 0; item < items.size(); ++item) {
        if (!isKept[item]) {
            mItemsToRemove.append(item);
        }
    }
}
