#pragma once

#include "host/core/FScope.h"
#include "host/design/FEntryBase.h"

#include <QMap>

/** An entity with a tree of entries: a definition, or a configuration. */
class FDefinitionBase : public FClass<FDefinitionBase, FEntity>, public FEntryHolder {
 public:
    static FClassData mClass;

    explicit FDefinitionBase(const QString& name = QString()) : FClass(name) {}

    /**
     * The entries that hold values, by their paths; groups have no row. Of two with the same path the first counts.
     * Built anew only after a change of the structure; a reference to it lasts until then.
     */
    const QMap<QString, FExpr<FEntryBase>>& getEntryMap() const;
    /** The entry or group of that path; null if there is none. */
    FEntryBase* getEntryOfScope(const QString& path) const;

    /** A message that there is no such entry, with the nearest one that there is. */
    void warnUnknownEntry(const QString& path) const;

    FDefinitionBase* getRoot() const override { return const_cast<FDefinitionBase*>(this); }
    bool doUpdate() const override { return FEntity::doUpdate(); }

 private:
    static std::vector<std::unique_ptr<FStateField>> fields();
    const FRecorded* asRecorded() const override { return this; }

    mutable QMap<QString, FExpr<FEntryBase>> mEntryMap;
    mutable quint64 mMapVersion = 0;
};
