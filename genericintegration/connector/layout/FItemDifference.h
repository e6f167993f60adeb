#pragma once

#include <QVector>

class FObject;

/**
 * What a scene must change so that its items stand for the objects of the set-up. Places are those in the lists given,
 * in ascending order. Takes time linear in the length of both.
 */
class FItemDifference {
 public:
    /** An object with the type of its value, or an item's object with the type that the item shows. Null: any type. */
    struct Row {
        const FObject* object;
        const FObject* valueType;
    };

    /** An object fits the first of its items that isn't taken, or none if the types differ. */
    FItemDifference(const QVector<Row>& objects, const QVector<Row>& items);

    const QVector<int>& itemsToRemove() const { return mItemsToRemove; }
    const QVector<int>& objectsToAdd() const { return mObjectsToAdd; }

 private:
    QVector<int> mItemsToRemove;
    QVector<int> mObjectsToAdd;
};
