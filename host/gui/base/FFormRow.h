#pragma once

#include "host/core/FExport.h"

#include <QList>
#include <QVariant>
#include <QWidget>

class QLabel;

/** A row of a form: a label and the widgets that belong to it. The label is the buddy and the name of the first one. */
class MERIX_EXPORT FFormRow : public QWidget {
    Q_OBJECT

 public:
    FFormRow(const QString& label, const QList<QWidget*>& fields, QWidget* parent = nullptr);

    QLabel* label() const { return mpLabel; }
    /** Says to a style sheet that no row of the group follows. */
    void setLast() { setProperty("last", true); }

 private:
    QLabel* mpLabel;
};
