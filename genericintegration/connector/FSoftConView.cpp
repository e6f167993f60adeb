#include "genericintegration/connector/FSoftConView.h"

#include "genericintegration/connector/FConnectorAccessible.h"
#include "genericintegration/connector/FSoftConScene.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QGraphicsItem>
#include <QKeyEvent>
#include <QScrollBar>

FSoftConView::FSoftConView(QWidget* parent) : QGraphicsView(parent) {
    FConnectorAccessible::install();
    setObjectName(QStringLiteral("softConOverview"));
    setAccessibleName(QStringLiteral("Inputs and outputs"));
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    keepAtStart(horizontalScrollBar(), mIsLeftAtStart);
    keepAtStart(verticalScrollBar(), mIsTopAtStart);
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
int FSoftConView::startOf(const QScrollBar& bar) const {
    const int start = bar.orientation() == Qt::Horizontal ? -viewport()->width() / 2 : bar.minimum();
    return qBound(bar.minimum(), start, bar.maximum());
}

void FSoftConView::keepAtStart(QScrollBar* bar, bool& isAtStart) {
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar, &isAtStart](int value) { isAtStart = value == startOf(*bar); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar, &isAtStart] {
        if (isAtStart) {
            bar->setValue(startOf(*bar));
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

// Not every window system asks for the menu with this key.
void FSoftConView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier) {
        const QPoint place = viewport()->rect().center();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, viewport()->mapToGlobal(place));
        contextMenuEvent(&menu);
    } else {
        QGraphicsView::keyPressEvent(event);
    }
}

// The base centres what it shows, and the size may be another one than that of the last layout.
void FSoftConView::showEvent(QShowEvent* event) {
    const bool isLeftAtStart = mIsLeftAtStart;
    const bool isTopAtStart = mIsTopAtStart;
    QGraphicsView::showEvent(event);
    if (isLeftAtStart) {
        horizontalScrollBar()->setValue(startOf(*horizontalScrollBar()));
    }
    if (isTopAtStart) {
        verticalScrollBar()->setValue(startOf(*verticalScrollBar()));
    }
    if (connectorScene()) {
        connectorScene()->requestLinks();
        connectorScene()->calcItemRatios();
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
