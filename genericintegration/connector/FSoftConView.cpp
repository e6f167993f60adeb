#include "genericintegration/connector/FSoftConView.h"

FSoftConView::FSoftConView(QWidget* parent) : QGraphicsView(parent) {
    setObjectName(QStringLiteral("softConOverview"));
    setAccessibleName(QStringLiteral("Overview"));
    setFrameShape(QFrame::NoFrame);
}

void FSoftConView::dragEnterEvent(QDragEnterEvent* event) {
    QGraphicsView::dragEnterEvent(event);
}
