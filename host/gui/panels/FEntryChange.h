#pragma once

#include "host/core/FExport.h"

#include <QString>

class FDefinition;
class FEntry;
class FEntryDef;
struct FValueField;

/**
 * What a user does to the entries of a configuration or definition, each call as one step. All give the reason if
 * nothing was done, else an empty text.
 */
namespace FEntryChange {

/** @param text  script text of the expression; a blank one takes the value away */
MERIX_EXPORT QString setValue(FEntry& entry, const QString& text);
/** Changes a part of the value that the entry holds. */
MERIX_EXPORT QString setField(FEntry& entry, const FValueField& field, const QString& text);
MERIX_EXPORT QString reset(FEntry& entry);

/** Whether the configuration may have a further occurrence beside this one. */
MERIX_EXPORT bool mayAddOccurrence(const FEntry& entry);
MERIX_EXPORT QString addOccurrence(FEntry& entry);
/** Whether the last occurrence of the same entry can be taken away. */
MERIX_EXPORT bool mayRemoveOccurrence(const FEntry& entry);
MERIX_EXPORT QString removeOccurrence(FEntry& entry);

struct NewEntry {
    QString path;      //!< in the definition
    QString standard;  //!< script text of the default value
    int most = 1;      //!< occurrences
    int least = 1;
    QString description{};
};

MERIX_EXPORT QString addEntry(FDefinition& definition, const NewEntry& entry);
/** A free path for a new entry: in the group of another, or of the definition if that is null. */
MERIX_EXPORT QString freePath(const FDefinition& definition, const FEntryDef* beside);
/** Renames the entry; the tags of templates follow. */
MERIX_EXPORT QString renameEntry(FDefinition& definition, const FEntryDef& entry, const QString& name);
/** Removes the entry, also from all configurations. */
MERIX_EXPORT QString removeEntry(FDefinition& definition, const FEntryDef& entry);
/** @param text  script text of the default; a blank one takes it away */
MERIX_EXPORT QString setDefault(FDefinition& definition, const FEntryDef& entry, const QString& text);

}  // namespace FEntryChange
