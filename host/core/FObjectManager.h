#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSet>

class FManaged;
class FScope;

/** All managed objects of the model, by number and by name. */
class MERIX_EXPORT FObjectManager : public QObject {
    Q_OBJECT
 public:
    static FObjectManager* instance();

    bool contains(const FObject* object) const { return mKnown.contains(object); }
    /** The object of that name; null if there is none. */
    FManaged* find(const QString& name) const;
    /** The object of that number; null if there is none. */
    FManaged* find(int id) const { return mById.value(id); }
    /** All names in alphabetical order. */
    QStringList getNames() const;
    /** The objects of a class and of those derived from it, in the order of creation. An empty name takes all. */
    QList<FManaged*> getManaged(const FObject* prototype, const QString& name = QString(),
                                bool exactClass = false) const;
    /** The objects registered under a parent registration, in the order of creation. */
    QList<FManaged*> getChildrenOf(const FObject* parent) const;
    /** The scope in which new objects are created. An empty handle means the project itself. */
    FExpr<FScope> getWorkingScope() const { return {}; }

    /** `name`, with a suffix if an object other than `self` has it already. */
    QString uniqueName(const QString& name, const FManaged* self) const;
    void emitNameChanged(const FObject* prototype, const QString& name, int id);

    // Only for FManaged.
    int nextId() { return ++mLastId; }
    int lastId() const { return mLastId; }
    void renumber(FManaged* object, int from, int to);
    /** Restarts the numbering after the highest number in use. */
    void restartIds() { mLastId = mById.isEmpty() ? 0 : mById.lastKey(); }
    void enter(FManaged* object);
    void leave(FManaged* object, const QString& name);
    void rename(FManaged* object, const QString& from, const QString& to);

 signals:
    void nameChanged(const FObject* prototype, const QString& name, int id);

 private:
    int mLastId = 0;
    QMap<int, FManaged*> mById;
    QMultiHash<QString, FManaged*> mByName;  // two of a name only in the middle of an undo
    QSet<const FObject*> mKnown;
    mutable QHash<QString, int> mNextSuffix;  // by base names: the first suffix that may be free
};
