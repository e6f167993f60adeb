#include "genericintegration/connector/FSoftConView.h"

#include "genericintegration/connector/FConnectorAccessible.h"
#include "genericintegration/connector/FSoftConScene.h"

#include <QApplication>
#include <QScrollBar>

#include <memory>

FSoftConView::FSoftConView(QWidget* parent) : QGraphicsView(parent) {
    FConnectorAccessible::install();
    setObjectName(QStringLiteral("softConOverview"));
    setAccessibleName(QStringLiteral("Inputs and outputs"));
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    keepAtStart(horizontalScrollBar());
    keepAtStart(verticalScrollBar());
}

FSoftConScene* FSoftConView::connectorScene() const {
    return qobject_cast<FSoftConScene*>(scene());
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
        connectorScene()->updateColors();
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
