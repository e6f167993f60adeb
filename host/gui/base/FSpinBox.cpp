#include "host/gui/base/FSpinBox.h"

#include <QSignalBlocker>
#include <QWheelEvent>

FSpinBox::FSpinBox(int least, int greatest, QWidget* parent) : QSpinBox(parent), mLeast(least), mGreatest(greatest) {
    setRange(least, greatest);
    setFocusPolicy(Qt::StrongFocus);
}

void FSpinBox::show(int value) {
    const QSignalBlocker blocker(this);
    setRange(qMin(mLeast, value), qMax(mGreatest, value));
    setValue(value);
}

void FSpinBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QSpinBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}
