#pragma once

#include "host/core/FExport.h"

#include <QTreeView>

/** A flat list with columns: rows are selected as a whole, Ctrl+C copies them as text. */
class MERIX_EXPORT FListView : public QTreeView {
    Q_OBJECT

 public:
    /** @param name  as a screen reader reads it; also the base of the object name */
    FListView(const QString& id, const QString& name, QAbstractItemModel* model, QWidget* parent);

    /** Sets the widths of all columns but the last, in characters. */
    void setWidths(const QList<int>& characters);
    /** The selected rows, with tabs between the columns; all rows if none is selected. */
    virtual QString toText() const;

 protected:
    void keyPressEvent(QKeyEvent* event) override;
};
