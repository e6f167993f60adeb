#pragma once

#include "host/core/FExport.h"

#include <QGroupBox>

class FFormRow;

/** A titled group of the rows of a form. */
class MERIX_EXPORT FGroupBox : public QGroupBox {
    Q_OBJECT

 public:
    explicit FGroupBox(const QString& title, QWidget* parent = nullptr);

    void addRow(FFormRow* row);
};
