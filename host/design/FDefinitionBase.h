#pragma once

#include "host/core/FExport.h"
#include "host/core/FScope.h"
#include "host/design/FEntryBase.h"

#include <QMap>

/** An entity with a tree of entries: a definition, or a configuration. */
class MERIX_EXPORT FDefinitionBase : public FClass<FDefinitionBase, FEntity>, public FEntryHolder {
 public:
    static FClassData mClass;

    explicit FDefinitionBase(const QString& name = QString());

    /**
     * The entries that hold values, by their paths; groups have no row. Of two with the same path the first counts.
     * Rebuilt only after a change of the structure; a reference to it is valid until then.
     */
    const QMap<QString, FExpr<FEntryBase>>& getEntryMap() const;
    /** Identifies the present entry map: each rebuilt map gets a number that no other map had. */
    quint64 getEntryMapNumber() const;
    /** Grows with each change of a list or name of its entries. */
    quint64 getVersion() const { return mVersion; }
    /** The entry or group of that path; null if there is none. */
    FEntryBase* getEntryOfScope(const QString& path) const;

    /**
     * What to depend on to hear of changes of the structure, and not of values: so that an entry can depend on its
     * neighbours.
     */
    const FExprBase& getStructure() const { return mStructure; }
    /** Marks what depends on the structure, too; a change of a value marks the definition without this operation. */
    void setOutOfDate(bool outOfDate) const override;

    /** A message that there is no such entry, with the nearest one that there is. */
    void warnUnknownEntry(const QString& path) const;

    FDefinitionBase* getRoot() const override { return const_cast<FDefinitionBase*>(this); }
    bool doUpdate() const override { return FEntity::doUpdate(); }
    std::size_t getMemory() const override { return FEntity::getMemory() + getEntriesMemory(); }

 protected:
    void tellGone() const override;
    void letGo() override;

 private:
    friend class FEntryHolder;

    void noteStructureChange() { ++mVersion; }
    static std::vector<std::unique_ptr<FStateField>> fields();
    const FRecorded* asRecorded() const override { return this; }

    FExprBase mStructure;
    quint64 mVersion = 1;
    mutable QMap<QString, FExpr<FEntryBase>> mEntryMap;
    mutable quint64 mMapVersion = 0;
    mutable quint64 mMapNumber = 0;
};
