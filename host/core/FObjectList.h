#pragma once

#include "host/core/FClass.h"
#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <vector>

/**
 * A list of handles. As a selection set it is what a command gave on several receivers, or what a user has selected.
 */
class MERIX_EXPORT FObjectList : public FClass<FObjectList, FObject> {
 public:
    static FClassData mClass;

    /** @param elementType the prototype that all elements are of; FObject's for a mixed list */
    explicit FObjectList(const FObject* elementType = nullptr) : mpElementType(elementType) {}
    FObject* clone() const override { return new FObjectList(*this); }

    void add(const FExpr<FObject>& element) { mObjects.push_back(element); }
    /** Removes every element that is the very same object. */
    void remove(const FExpr<FObject>& element);
    int count() const { return static_cast<int>(mObjects.size()); }
    /** The element of that index from 0; an empty handle outside the list. */
    FExpr<FObject> at(int index) const;
    const std::vector<FExpr<FObject>>& getObjects() const { return mObjects; }
    void setObjects(std::vector<FExpr<FObject>> objects) { mObjects = std::move(objects); }

    void setAsSelectionSet(bool selectionSet) { mSelectionSet = selectionSet; }
    bool isSelectionSet() const { return mSelectionSet; }
    /** The class that all elements are of: the given one, or the nearest common base of what is in the list. */
    const FObject* getElementType() const;

    QString toString() const override;
    QString toExpressionString() const override;
    QString toHistoryString() const override;
    FObjectList* castToObjectList() override { return this; }
    /** A list of objects that need another text than their own can't be kept. */
    QString getKeptText(QString& fault) const override;

 protected:
    std::vector<FExprBase> getOperands() const override { return {mObjects.begin(), mObjects.end()}; }

 private:
    const FObject* mpElementType;
    bool mSelectionSet = false;
    std::vector<FExpr<FObject>> mObjects;
};
