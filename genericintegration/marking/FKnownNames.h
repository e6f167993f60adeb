#pragma once

#include "genericintegration/marking/FFoldedNames.h"

class FDefinitionGenInt;

/** The names that the tags of a definition's input templates can use: of its entries, and of the files they make. */
class FKnownNames {
 public:
    /** Takes over the definition's names; true if they may have changed. Fast if neither entries nor files changed. */
    bool update(const FDefinitionGenInt& definition);

    const FFoldedNames& get() const { return mNames; }

 private:
    quint64 mEntryMapNumber = 0;
    QStringList mFiles;
    FFoldedNames mNames;
};
