#include "host/gui/base/FStateLabel.h"

#include <QEvent>

FStateLabel::FStateLabel(FStateColor::State state, QWidget* parent) : QLabel(parent), mState(state) {
    takeColor();
}

void FStateLabel::takeColor() {
    const QColor color = FStateColor::of(mState);
    QPalette own = palette();
    if (own.color(QPalette::WindowText) != color) {
        own.setColor(QPalette::WindowText, color);
        setPalette(own);
    }
}

void FStateLabel::setState(FStateColor::State state) {
    mState = state;
    takeColor();
}

void FStateLabel::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        takeColor();
    }
    QLabel::changeEvent(event);
}
