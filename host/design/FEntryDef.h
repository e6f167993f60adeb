#pragma once

#include "host/core/FExport.h"
#include "host/design/FEntryBase.h"

class FDefinition;

/**
 * What a definition says of an entry: its name, how often it may occur, its type and default value; or a group of such.
 */
class MERIX_EXPORT FEntryDef : public FClass<FEntryDef, FEntryBase> {
 public:
    static FClassData mClass;

    explicit FEntryDef(const QString& name = QString()) : FClass(name) {}

    /** Occurrences that one definition may ask for. */
    static constexpr int mostOccurrences = 10000;

    /**
     * Adds an entry to a definition or to a group of one; its configurations get it at once. The name is made legal
     * and free. The occurrences are moved into 0 ≤ least ≤ most ≤ mostOccurrences, 1 ≤ most.
     * @param valueOrType  with `hasDefault` the default, of which the present value is taken, and its class as type;
     *                     without it the prototype of the type, or an empty handle for a group
     * @return null, with a message, if the parent can't hold it: it isn't of a definition, or too deep
     */
    static FEntryDef* create(const QString& name, FEntryHolder* parent, int least, int most, bool hidden,
                             bool hasDefault, const QString& description, const FExprBase& valueOrType);

    /** An entry as `create` makes it, but without a parent. The caller ensures that names in a tree of them are unique.
     */
    static FExpr<FEntryBase> make(const QString& name, int least, int most, bool hidden, bool hasDefault,
                                  const QString& description, const FExprBase& valueOrType);

    int getMinOccurrences() const { return mLeast; }
    int getMaxOccurrences() const { return mMost; }
    bool isHidden() const { return mHidden; }
    const QString& getDescription() const { return mDescription; }
    /** The prototype of the type; null for a group. */
    const FObject* getType() const { return mpType; }
    bool isGroup() const override { return !mpType; }
    bool hasDefault() const { return mDefault.isValid(); }
    /** Empty if there is none. */
    const FExprBase& getDefaultValue() const { return mDefault; }
    /**
     * Changes the default, of which the present value is taken; an empty handle takes it away, and the type stays. The
     * entries of configurations that have the default take the new one. Must not be called for a group.
     */
    void setDefaultValue(const FExprBase& value);

    /**
     * Renames, with the name made legal and free. The entries of all configurations follow, and so do the tags of the
     * templates unless a project is being read.
     */
    void setName(const QString& name);
    /** The paths of the entries that hold values, from the definition on: of this one, or of those below a group. */
    QStringList getLeafPaths() const;
    /** A copy with all below it, which has no parent. */
    FExpr<FEntryBase> copy() const;
    /** The call of `addEntry` from which the entry comes back; empty for a group that its entries bring along. */
    QString toSavedCommand() const;
    std::size_t getMemory() const override;

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();

    FEntryDef(const FEntryDef& other);
    void takeDefault(const FExprBase& value);
    static bool mayHold(const FEntryHolder* parent);
    QString savedArguments() const;

    int mLeast = 1;
    int mMost = 1;
    bool mHidden = false;
    QString mDescription;
    const FObject* mpType = nullptr;
    FExprBase mDefault;
};
