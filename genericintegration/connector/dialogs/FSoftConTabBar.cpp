#include "genericintegration/connector/dialogs/FSoftConTabBar.h"

#include "host/design/FConnectorInterface.h"

#include <QMouseEvent>

void FSoftConTabBar::mousePressEvent(QMouseEvent* event) {
    emit clicked();
    QTabBar::mousePressEvent(event);
}

void FSoftConTabBar::mouseDoubleClickEvent(QMouseEvent* event) {
    if (dynamic_cast<FConnectorInterface*>(parentWidget())) {
        setCurrentIndex(0);
    }
    QWidget::mouseDoubleClickEvent(event);
}
