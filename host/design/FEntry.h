#pragma once

#include "host/core/FExport.h"
#include "host/design/FEntryBase.h"

class FEntryDef;

/** What an entry of a definition is worth in one configuration: one of its occurrences, with its value, or a group. */
class MERIX_EXPORT FEntry : public FClass<FEntry, FEntryBase> {
 public:
    static FClassData mClass;

    explicit FEntry(const QString& name = QString());
    FEntry(const FExpr<FEntryDef>& definition, int index);
    ~FEntry() override;
    /** How many entries there are in the program. */
    static int getCount() { return mCount; }

    /**
     * Appends an entry to a configuration or group. The entry definition of that name in what the parent
     * is defined by becomes its definition, as its next occurrence.
     * @param initialize  whether it gets its default value, or the entries of its group
     */
    static FEntry* create(const QString& name, FEntryHolder* parent, bool initialize);

    const FExpr<FEntryDef>& getDefinition() const { return mDefinition; }
    void setDefinition(const FExpr<FEntryDef>& definition);
    /** Number of the occurrence, from 0. */
    int getIndex() const { return mIndex; }
    bool isGroup() const override;
    bool hasNestedEntries() const { return !getEntries().isEmpty(); }
    /** The name, as `name[index]` where the definition allows more than one occurrence. */
    QString getPathPart() const override;

    // ---- value ----
    /** The value as it was set: an expression, a value, or a managed object. */
    const FExprBase& getValue() const { return mValue; }
    /** Refused, with a message and false, if the entry would depend on itself. An empty handle takes the value away. */
    bool setValue(const FExprBase& value);
    void setDefaultValue();
    /** True if the value is written as the default is. */
    bool hasDefaultValue() const;
    bool holdsValue() const override { return true; }
    /** The evaluated value, a number as a double; null if there is none. */
    FObject* getValueObject() const override;
    bool doUpdate() const override;
    /** False if the value's type is known and isn't that of file names. An expression may give one. */
    bool mayGiveFileName() const;
    /** Changes whenever this may have changed for an entry of the program that holds a value; never 0. */
    static quint64 getFileNameVersion() { return mFileNameVersion; }

    /**
     * Has the nested entries belong to the present entry definitions: one whose own is gone takes the first of the same
     * name, or stays as it is.
     */
    void reassignEntryDefs();
    /** The same for a list of entries that a list of entry definitions defines. */
    static void reassign(const QList<FExpr<FEntryBase>>& entries, const QList<FExpr<FEntryBase>>& definitions);
    /** This entry, and each below it, takes the name of that entry definition if it belongs to it. */
    void followName(const FEntryDef* definition);
    /** A copy of the entry with all below it, which has no parent. */
    FExpr<FEntryBase> copy() const;

 protected:
    std::vector<FExprBase> getOperands() const override { return {mValue}; }

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();

    static int mCount;
    static quint64 mFileNameVersion;

    FExpr<FEntryDef> mDefinition;
    int mIndex = 0;
    FExprBase mValue;
    mutable FExprBase mResult;
};
