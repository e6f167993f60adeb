#pragma once

#include "genericintegration/io/FValueTable.h"
#include "host/run/FSetUpCheck.h"

class FDefinitionGenInt;
class FGenIntFile;

/** Finds where input templates use the entries of a configuration, in time linear in the size of the templates. */
class FEntryUses {
 public:
    FEntryUses(const FConfiguration& configuration, const FDefinitionGenInt& definition);

    /** Each line once, and of each entry only the first ones. */
    FSetUpCheck::Uses find() const;

 private:
    void findIn(const FGenIntFile& file, FSetUpCheck::Uses& uses) const;

    const FDefinitionGenInt& mDefinition;
    FValueTable mTable;
};
