#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FObjectList.h"
#include "host/core/FQueuedCall.h"

#include <QList>
#include <QObject>

/**
 * The objects that the user has selected, each once, in the order of selection. Those that leave the model are dropped;
 * undo doesn't select them again.
 */
class MERIX_EXPORT FSelectionSet : public QObject {
    Q_OBJECT

 public:
    static FSelectionSet* instance();

    int count() const { return static_cast<int>(mObjects.size()); }
    bool contains(const FObject* object) const;
    const QList<FExpr<FObject>>& getObjects() const { return mObjects; }
    /** A copy as a list object, whose commands act on each object. */
    FExpr<FObjectList> toList() const;

    /** Without `notify`, `changed` isn't emitted. The same holds for the other operations. */
    void clear(bool notify = true) { set({}, notify); }
    /** Selects these objects and no others. Empty handles are left out. */
    void set(const QList<FExpr<FObject>>& objects, bool notify = true);
    void setSelection(const QList<FExpr<FObject>>& objects) { set(objects); }
    /** Does nothing if the object isn't selected. */
    void remove(const FObject* object, bool notify = true);

 signals:
    /** For views that can change the selection themselves: not emitted for changes made without `notify`. */
    void changed();
    /** For panels that show what is selected: emitted from the event loop, once after any number of changes. */
    void selectionReplaced();

 private:
    FSelectionSet();
    void replace(QList<FExpr<FObject>> objects, bool notify);

    QList<FExpr<FObject>> mObjects;
    FQueuedCall mReplaced{[this] { emit selectionReplaced(); }};
};
