#include "genericintegration/connector/FHoverCursor.h"

#include <QApplication>
#include <QCursor>

void FHoverCursor::enter() {
    if (++mDepth == 1) {
        QApplication::setOverrideCursor(QCursor(Qt::PointingHandCursor));
    }
}

void FHoverCursor::leave() {
    if (mDepth > 0 && --mDepth == 0) {
        QApplication::restoreOverrideCursor();
    }
}

void FHoverCursor::clear() {
    while (mDepth > 0) {
        leave();
    }
}
