#pragma once

#include "host/core/FExport.h"
#include "host/core/FRecorded.h"
#include "host/core/FStateField.h"
#include "host/design/FEntryHolder.h"

/**
 * An entry: a named value, or a group of entries. In a definition it says what there is, in a configuration what it is
 * worth. The history keeps each entry by itself, so that a step costs what it changes, however many there are.
 */
class MERIX_EXPORT FEntryBase : public FClass<FEntryBase, FRecorded>, public FEntryHolder {
 public:
    static FClassData mClass;

    explicit FEntryBase(const QString& name = QString()) : mName(name) {}

    const QString& getName() const { return mName; }
    virtual QString getDisplayName() const { return mName; }
    /** The entry's level of a path: its name, with an index where more than one occurrence is allowed. */
    virtual QString getPathPart() const { return mName; }
    /** The path of the entry: the levels from the outermost group on, joined by "|". */
    QString getFullName() const;
    virtual bool isGroup() const { return !getEntries().isEmpty(); }

    /** The entry of a handle in a holder's list, which is always there: without the checks of a handle. */
    static FEntryBase* of(const FExpr<FEntryBase>& handle) { return static_cast<FEntryBase*>(handle.getStored()); }

    /** The holder of the entry; null if it has no parent. */
    FEntryHolder* getHolder() const { return mpHolder; }
    /** The group that contains the entry; null outside of groups. */
    FEntryBase* getParent() const { return dynamic_cast<FEntryBase*>(mpHolder); }
    FDefinitionBase* getRoot() const override { return mpHolder ? mpHolder->getRoot() : nullptr; }
    int getLevel() const override { return mpHolder ? mpHolder->getLevel() + 1 : 1; }

    bool isRecorded() const override;
    FManaged* getOwner() const override;
    std::size_t getMemory() const override { return FRecorded::getMemory() + getEntriesMemory(); }
    /** Also marks what depends on the structure; a change of a value alone marks without this operation. */
    void setOutOfDate(bool outOfDate) const override;
    QString toString() const override { return getFullName(); }

 protected:
    FObject* getWhole() const override;
    /** Sets the name unchanged; the caller ensures that it is legal and unique. */
    void rename(const QString& name);

 private:
    friend class FEntryHolder;

    static std::vector<std::unique_ptr<FStateField>> fields();
    const FRecorded* asRecorded() const override { return this; }
    void attach(FEntryHolder* holder);
    void nameChanged();

    QString mName;
    FEntryHolder* mpHolder = nullptr;
};
