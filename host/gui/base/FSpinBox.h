#pragma once

#include "host/core/FExport.h"

#include <QSpinBox>

/** A spin box that only the one who has chosen it turns: scrolling a form over it changes nothing. */
class MERIX_EXPORT FSpinBox : public QSpinBox {
    Q_OBJECT

 public:
    FSpinBox(int least, int greatest, QWidget* parent = nullptr);

    /** Shows a value without a signal, also one beyond the range. */
    void show(int value);
    using QWidget::show;

 protected:
    void wheelEvent(QWheelEvent* event) override;

 private:
    int mLeast;
    int mGreatest;
};
