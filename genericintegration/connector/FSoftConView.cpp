#include "genericintegration/connector/FSoftConView.h"

#include "genericintegration/connector/FConnectorAccessible.h"
#include "genericintegration/connector/FSoftConScene.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGraphicsItem>
#include <QScrollBar>

#include <memory>

FSoftConView::FSoftConView(QWidget* parent) : QGraphicsView(parent) {
    FConnectorAccessible::install();
    setObjectName(QStringLiteral("softConOverview"));
    setAccessibleName(QStringLiteral("Inputs and outputs"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    keepAtStart(horizontalScrollBar());
    keepAtStart(verticalScrollBar());
}

FSoftConScene* FSoftConView::connectorScene() const {
    return qobject_cast<FSoftConScene*>(scene());
}

QRect FSoftConView::roomForScene(double leastHeight) const {
    constexpr int margin = 10;
    const QRect room = rect().adjusted(0, 0, -margin, -margin);
    // Else a horizontal bar would appear as well, only because of the vertical one.
    const int bar = room.height() < leastHeight ? verticalScrollBar()->sizeHint().width() : 0;
    return room.adjusted(0, 0, std::min(0, margin - bar), 0);
}

// Positions are those of the scene, whose origin is the computation.
void FSoftConView::keepAtStart(QScrollBar* bar) {
    const auto startOf = [this, bar] {
        const int start = bar->orientation() == Qt::Horizontal ? -viewport()->width() / 2 : bar->minimum();
        return qBound(bar->minimum(), start, bar->maximum());
    };
    const auto isAtStart = std::make_shared<bool>(true);
    connect(bar, &QScrollBar::valueChanged, this, [startOf, isAtStart](int value) { *isAtStart = value == startOf(); });
    connect(bar, &QScrollBar::rangeChanged, this, [bar, startOf, isAtStart] {
        if (*isAtStart) {
            bar->setValue(startOf());
        }
    });
}

void FSoftConView::changeEvent(QEvent* event) {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && connectorScene()) {
        connectorScene()->updateLook();
    }
}

void FSoftConView::paintEvent(QPaintEvent* event) {
    if (mRatio != devicePixelRatioF() && connectorScene()) {
        mRatio = devicePixelRatioF();
        connectorScene()->updateLook();
    }
    QGraphicsView::paintEvent(event);
}

// By key, the menu is that of what has the focus.
void FSoftConView::contextMenuEvent(QContextMenuEvent* event) {
    const QGraphicsItem* focused = scene() ? scene()->focusItem() : nullptr;
    if (event->reason() != QContextMenuEvent::Keyboard || !focused) {
        QGraphicsView::contextMenuEvent(event);
        return;
    }
    const QPoint place = mapFromScene(focused->sceneBoundingRect().center());
    QContextMenuEvent there(QContextMenuEvent::Keyboard, place, viewport()->mapToGlobal(place), event->modifiers());
    QGraphicsView::contextMenuEvent(&there);
    event->setAccepted(there.isAccepted());
}

void FSoftConView::showEvent(QShowEvent* event) {
    QGraphicsView::showEvent(event);
    if (connectorScene()) {
        connectorScene()->requestLinks();
    }
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
