#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QList>
#include <QString>

class FDefinitionBase;
class FEntryBase;
class FRecorded;

/**
 * What contains entries: a definition, a configuration, or a group of one of these. It keeps its entries alive, and
 * each of them knows it. Every change is recorded in the history and marks the definition or configuration.
 */
class MERIX_EXPORT FEntryHolder {
 public:
    FEntryHolder() = default;
    virtual ~FEntryHolder();
    FEntryHolder(const FEntryHolder&) = delete;
    FEntryHolder& operator=(const FEntryHolder&) = delete;

    const QList<FExpr<FEntryBase>>& getEntries() const { return mEntries; }
    /** The first entry of that name; null if there is none. */
    FEntryBase* findEntry(const QString& name) const;
    /** `name` made legal, with a suffix if an entry other than `self` has it. */
    QString freeEntryName(const QString& name, const FEntryBase* self) const;

    /** Appends an entry. An empty handle, and an entry that has a parent already, change nothing. */
    virtual void addEntry(const FExpr<FEntryBase>& entry);
    /** Takes an entry out; false if it doesn't stand here. */
    virtual bool removeEntry(const FExpr<FEntryBase>& entry);
    /** The same, also from the groups below. */
    virtual bool findAndRemoveEntry(const FExpr<FEntryBase>& entry);
    /** Replaces the list; nothing happens if it is the same. */
    void setEntries(const QList<FExpr<FEntryBase>>& entries);

    /** The definition or configuration that all of it belongs to; null if there is none. */
    virtual FDefinitionBase* getRoot() const = 0;
    /** How many groups contain an entry of this holder. */
    virtual int getLevel() const { return 0; }

    /** Grows with each change of a list or name of any entry. */
    static quint64 getStructureVersion() { return mStructureVersion; }

 protected:
    /** Makes the entries know their holder, after their list was written back as a raw field. */
    void linkEntries();
    /** About how many bytes its entries hold. */
    std::size_t getEntriesMemory() const;
    static void structureChanged() { ++mStructureVersion; }

    QList<FExpr<FEntryBase>> mEntries;

 private:
    /** The holder as the history knows it. */
    virtual const FRecorded* asRecorded() const = 0;
    bool standsIn(const FEntryBase* entry) const;
    void changed();
    void unlinkEntries();

    QList<FExpr<FEntryBase>> mLinked;  // the entries that know this holder
    static quint64 mStructureVersion;
};
