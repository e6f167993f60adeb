#pragma once

#include "host/core/FExport.h"

#include <QAccessibleWidget>

/** A view whose picture has parts that a screen reader finds as its children. */
class MERIX_EXPORT FPartsAccessible : public QAccessibleWidget {
 public:
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    /** The part whose state is focused. */
    QAccessibleInterface* focusChild() const override;

 protected:
    FPartsAccessible(QWidget* view, QAccessible::Role role) : QAccessibleWidget(view, role) {}

    /** In reading order; each has an accessible interface. */
    virtual QList<QObject*> parts() const = 0;

 private:
    template <class Fits>
    QAccessibleInterface* find(const Fits& fits) const;
};
