#pragma once

#include "host/run/FExternComputation.h"

class FConfigurationGenInt;
class FDefinitionGenInt;
class FEntry;

/** The set-up of a computation, as far as items add to it and take from it. */
class FSetUpObjects {
 public:
    explicit FSetUpObjects(const FExpr<FExternComputation>& computation);

    /** Null if there is none. */
    FConfigurationGenInt* configuration() const { return mpConfiguration; }
    FDefinitionGenInt* definition() const { return mpDefinition; }

    /**
     * A new entry, beside those of its type, or in the group of that name, which is made where it is missing. Null,
     * with a message unless there is no set-up, if that fails.
     * @param valueType  a prototype
     */
    FEntry* createEntry(const QString& groupName, const QString& name, const FObject* valueType) const;
    /** Removes the entry, and what it is defined by. */
    static void removeEntry(FEntry& entry);

 private:
    FEntry* findGroup(const QString& name, const FObject* valueType) const;

    FConfigurationGenInt* mpConfiguration = nullptr;
    FDefinitionGenInt* mpDefinition = nullptr;
};
