#pragma once

#include "host/core/FExport.h"

#include <QComboBox>

/** A list of choices that the wheel changes only with the focus, so that scrolling a form over it changes nothing. */
class MERIX_EXPORT FComboBox : public QComboBox {
    Q_OBJECT

 public:
    explicit FComboBox(QWidget* parent = nullptr);

 protected:
    void wheelEvent(QWheelEvent* event) override;
};
