#pragma once

#include "genericintegration/connector/FSoftConObjectItem.h"
#include "host/design/FEntry.h"

/** An item that stands for an entry of the configuration. The entry is called after what the item shows. */
class FSoftConEntryItem : public FClass<FSoftConEntryItem, FSoftConObjectItem> {
 public:
    static FClassData mClass;

    FSoftConEntryItem() = default;
    FSoftConEntryItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object, SoftConArea area,
                      const QString& image);

    /**
     * What the item shows of the entry.
     * @param resolved  the value of an expression instead of its text
     */
    virtual QString getDisplayName(const FExpr<FEntry>& entry, bool resolved) const;
    void removeObject() override;
    /** The entry's present name stays until the item shows something else. */
    void keepName();

 protected:
    void refresh() override;

    /** The entry that the item stands for; null while there is none. */
    FEntry* entry() const;
    /**
     * Makes an entry as the item's object, called after what it shows. Call it in a step.
     * @param value  of the entry; its class is the type
     */
    FEntry* createEntry(const QString& groupName, const QString& name, const FExprBase& value);
    /**
     * Calls the entry after what the item shows if that has changed, so that a name given by hand stays until then.
     * Outside of steps, where the model doesn't change, only takes note of it.
     */
    void updateEntryName();
    /** The value of the entry if there is one of that class, which can be had without a run. */
    template <class T>
    static T* valueOf(const FEntry* entry) {
        const FExprBase value = entry ? entry->getValue() : FExprBase();
        return value.canSafelyBeUpdated(true) ? dynamic_cast<T*>(value.getObject()) : nullptr;
    }

 private:
    QString displayedName() const;

    QString mLastName;  //!< what the entry was last called after
    bool mIsNamed = false;
};
