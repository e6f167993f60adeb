#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QList>
#include <QString>

class FConfiguration;
class FEntry;
class FEntryBase;
class FEntryDef;
class FEntryHolder;

/** Makes the entries of a configuration follow its definition. */
class MERIX_EXPORT FEntryTree {
 public:
    /** @param keepsOthers  whether entries without a living definition stay, after the others */
    explicit FEntryTree(bool keepsOthers = false) : mKeepsOthers(keepsOthers) {}

    /** Entries that one configuration can have; what counts multiply to beyond that isn't made, with a message. */
    static constexpr int mostEntries = 100000;
    /** The same for all configurations together, with those that undo can bring back. */
    static constexpr int mostInAll = 1000000;

    /**
     * Has a holder of entries hold what the other one defines, in that order: entries whose definition lives stay, new
     * ones come with their default value, gone ones go. Time linear in their number, nothing recorded where nothing
     * changes.
     * @param reset  also gives each entry its default value, and takes back further occurrences
     */
    void follow(FEntryHolder& entries, const FEntryHolder& definitions, bool reset);
    /**
     * Appends the occurrences of an entry definition that was just appended to a definition, or to a group of it, which
     * the configuration followed until then. False, with nothing done, if the configuration may become too large.
     */
    bool append(FConfiguration& configuration, const FEntryDef& added);
    /** Whether counts multiplied to more entries than there can be. */
    bool hasStopped() const { return mStopped; }
    /** Gives a new entry its default value, or the entries of its group. */
    void fill(FEntry& entry);

    /** The entry of that path; an occurrence that may exist, but doesn't yet, is made. Null if there can be none. */
    FEntry* makeOccurrence(FConfiguration& configuration, const QString& path);
    /** The next occurrence of a definition in a holder of its entries; null if there can be no further one. */
    FEntry* addOccurrence(FEntryHolder& holder, FEntryDef& definition);

    /** What defines the entries of a configuration or group; null if nothing does. */
    static const FEntryHolder* definitionsOf(const FEntryHolder& entries);
    /** How many occurrences of a definition a holder has. */
    static int countOf(const FEntryHolder& entries, const FEntryDef* definition);

 private:
    using Entries = QList<FExpr<FEntryBase>>;
    struct Range {
        int begin;
        int end;
    };

    void followLevel(FEntryHolder& entries, const FEntryHolder& definitions, bool reset);
    static void appendOthers(const Entries& present, Entries& list);
    Entries wanted(const FEntryHolder& entries, const FEntryHolder& definitions, bool reset);
    /** Appends the occurrences of a definition: those at a range of a list, and new ones up to the least count. */
    void addOccurrences(FEntryDef& definition, const Entries& present, Range own, bool reset, Entries& list);
    FEntry* occurrence(FEntryHolder& holder, const QString& level);
    FEntry* addOccurrencesUpTo(FEntryHolder& holder, FEntryDef& definition, int last);
    bool mayMakeOneMore(const FEntryDef& definition);

    bool mKeepsOthers;
    int mCount = 0;
    bool mStopped = false;
};
