#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/design/FEntryList.h"

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

    const QList<FExpr<FEntryBase>>& getEntries() const { return mEntries.get(); }
    /** The first entry of that name; null if there is none. */
    FEntryBase* findEntry(const QString& name) const { return mEntries.find(name); }
    /** `name` made legal, with a suffix if an entry other than `self` has it. */
    QString freeEntryName(const QString& name, const FEntryBase* self) const;

    /** Appends an entry. An empty handle, and an entry that has a parent already, change nothing. */
    virtual void addEntry(const FExpr<FEntryBase>& entry);
    /** Takes an entry out; false if it isn't here. */
    virtual bool removeEntry(const FExpr<FEntryBase>& entry);
    /** The same, also from the groups below. */
    virtual bool findAndRemoveEntry(const FExpr<FEntryBase>& entry);
    /** An entry of this holder has another name. */
    void entryRenamed();
    /** Replaces the list; nothing happens if it is the same. */
    void setEntries(const QList<FExpr<FEntryBase>>& entries);

    /** The definition or configuration that all of it belongs to; null if there is none. */
    virtual FDefinitionBase* getRoot() const = 0;
    /** How many groups contain an entry of this holder. */
    virtual int getLevel() const { return 0; }

    /** Grows with each change of a list or name of any entry. */
    static quint64 getStructureVersion() { return mStructureVersion; }

 protected:
    /** Takes the entries from the state that was written back as a raw field, and makes them know their holder. */
    void restoreEntries();
    /** About how many bytes its entries hold. */
    std::size_t getEntriesMemory() const;
    /** A list or name has changed here. */
    void structureChanged();
    FEntryList::Snapshot mState;  //!< the entries as the history knows them

 private:
    /** The holder as the history knows it. */
    virtual const FRecorded* asRecorded() const = 0;
    /** Has another list of entries. */
    void replaceEntries(const QList<FExpr<FEntryBase>>& entries);
    bool standsIn(const FEntryBase* entry) const;
    void changed();
    void unlinkEntries();

    FEntryList mEntries;
    QList<FExpr<FEntryBase>> mLinked;  // the entries that know this holder
    static quint64 mStructureVersion;
};
