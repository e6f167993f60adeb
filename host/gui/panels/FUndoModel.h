#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"

#include <QAbstractListModel>
#include <QStringList>

/** The steps of the history from the oldest to the last one that can be redone; before them the state at the start. */
class MERIX_EXPORT FUndoModel : public QAbstractListModel {
    Q_OBJECT

 public:
    FUndoModel();

    /** The row of the present state. */
    int present() const { return mDone.size(); }
    /** Undoes or redoes until the state of a row is the present one, or until a step can't be undone. */
    void goTo(int row);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

 signals:
    void followed();

 private:
    void follow();

    QStringList mDone;
    QStringList mUndone;  //!< the next one to redo first
    FQueuedCall mFollow{[this] { follow(); }};
};
