#pragma once

#include "genericintegration/io/FTemplateKeys.h"
#include "host/run/FSetUpCheck.h"

class FDefinitionGenInt;
class FGenIntFile;

/** Finds where input templates use the entries of a definition, in time linear in the size of the templates. */
class FEntryUses {
 public:
    explicit FEntryUses(const FDefinitionGenInt& definition);

    /** Each line once, and of each entry only the first ones. */
    FSetUpCheck::Uses find() const;

 private:
    void findIn(const FGenIntFile& file, FSetUpCheck::Uses& uses) const;

    const FDefinitionGenInt& mDefinition;
    QStringList mPaths;
    FTemplateKeys mKeys;
};
