#pragma once

#include "host/core/FExport.h"
#include "host/design/FDefinition.h"
#include "host/design/FEntry.h"

/** Values for the entries of a definition. */
class MERIX_EXPORT FConfiguration : public FClass<FConfiguration, FDefinitionBase> {
 public:
    static FClassData mClass;

    explicit FConfiguration(const QString& name = QString()) : FClass(name) {}

    const FExpr<FDefinition>& getDefinition() const { return mDefinition; }
    /** Takes the definition, which may be empty, and makes its entries. Values of entries that it has, too, stay. */
    void setDefinition(const FExpr<FDefinition>& definition);

    /** Follows the definition. False: values stay where the entry lives on. True: all values become the defaults. */
    void reinit(bool reset);
    /**
     * Gets an entry that was just added to the definition. False, with nothing done, if there was something else to
     * follow.
     * @param before  the version of the definition before the addition
     */
    bool followAddition(const FEntryDef& added, quint64 before);
    /** Gets the entries that it lacks. Those that the definition lacks stay. */
    void takeNewEntries();
    /** Makes all entries. */
    void initEntireStructure(bool reset) { reinit(reset); }
    /** The entries of that entry definition take its name. */
    virtual void renameEntries(const FEntryDef* definition);

    /** The entries of a type, in order: by the type of their present value, or by the one that is declared. */
    QList<FExpr<FEntry>> getEntry(const FObject* prototype, bool byValue) const;
    /** The entry of that path that holds a value; null if there is none. */
    FEntry* getValueEntry(const QString& path) const;
    /** What the value of an entry is read from. */
    std::vector<FExprBase> getSources(const QString& path) const;
    /**
     * Sets the value of an entry, which follows the expression. An occurrence that may exist, but doesn't yet, is made.
     * False, with a message, if there is no such entry, or if it would depend on itself.
     */
    bool setEntryValue(const QString& path, const FExprBase& value);

    QStringList furtherSavedCommands() const override;

 protected:
    /** Takes over the definition and a copy of all entries with their values. */
    void init(const FConfiguration* other);

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();

    /** How far its entries follow. */
    struct Versions {
        quint64 definition = 0;
        quint64 own = 0;
    };

    FExpr<FDefinition> mDefinition;
    Versions mFollowed;
};
