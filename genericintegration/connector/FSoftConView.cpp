#include "genericintegration/connector/FSoftConView.h"

#include <QApplication>

FSoftConView::FSoftConView(QWidget* parent) : QGraphicsView(parent) {
    setObjectName(QStringLiteral("softConOverview"));
    setAccessibleName(QStringLiteral("Overview"));
    setFrameShape(QFrame::NoFrame);
}

void FSoftConView::dragEnterEvent(QDragEnterEvent* event) {
    QGraphicsView::dragEnterEvent(event);
}

// Else the item under the pointer would keep the pointer's shape.
void FSoftConView::hideEvent(QHideEvent* event) {
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(viewport(), &leave);
    QGraphicsView::hideEvent(event);
}
