#pragma once

#include "host/run/FExternComputation.h"

class FConfigurationGenInt;
class FDefinitionGenInt;
class FEntry;
class FGenIntFile;

/** The set-up of a computation, as far as items show it, add to it and take from it. */
class FSetUpObjects {
 public:
    /** An object that an item stands for, with the type of its value if it is an entry. */
    struct Shown {
        FExpr<FObject> object;
        const FObject* valueType;
    };

    explicit FSetUpObjects(const FExpr<FExternComputation>& computation);

    /** Null if there is none. */
    FConfigurationGenInt* configuration() const { return mpConfiguration; }
    FDefinitionGenInt* definition() const { return mpDefinition; }

    /** The computation, the entries whose values are shown, and the files. */
    QList<Shown> shown() const;

    /**
     * A new entry, beside those of its type, or in the group of that name, which is made where it is missing. Null,
     * with a message unless there is no set-up, if that fails.
     * @param valueType  a prototype
     */
    FEntry* createEntry(const QString& groupName, const QString& name, const FObject* valueType) const;
    /** Removes the entry, and what it is defined by. */
    static void removeEntry(FEntry& entry);
    /** Removes the tags of an entry from all templates; false if the object isn't an entry of a set-up. */
    bool removeTags(const FObject* object) const;
    /** Empties an input template, and removes the entries that only its tags name. No change to another file. */
    void clearTemplate(FGenIntFile& file) const;

 private:
    FEntry* findGroup(const QString& name, const FObject* valueType) const;

    FExpr<FObject> mComputation;
    FConfigurationGenInt* mpConfiguration = nullptr;
    FDefinitionGenInt* mpDefinition = nullptr;
};
