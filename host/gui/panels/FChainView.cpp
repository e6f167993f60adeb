#include "host/gui/panels/FChainView.h"

#include "host/gui/base/FStateColor.h"
#include "host/gui/panels/FChainAccessible.h"
#include "host/gui/panels/FChainBox.h"
#include "host/gui/panels/FChainScene.h"
#include "host/run/FExternComputation.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace {

const char* const hint = "The computations of the project appear here, with the files that pass between them";

}  // namespace

FChainView::FChainView(FChainScene* scene, QWidget* parent) : QGraphicsView(scene, parent), mpScene(scene) {
    FChainAccessible::install();
    setObjectName(QStringLiteral("chainPicture"));
    setAccessibleName(QStringLiteral("Chain of computations"));
    setFrameShape(NoFrame);
    setRenderHint(QPainter::Antialiasing);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    viewport()->setBackgroundRole(QPalette::Window);
    connect(scene, &QGraphicsScene::selectionChanged, this, &FChainView::tellSelection);
}

FChainBox* FChainView::current() const {
    return qobject_cast<FChainBox*>(
        mpScene->selectedItems().isEmpty() ? nullptr : mpScene->selectedItems().first()->toGraphicsObject());
}

void FChainView::setCurrent(FChainBox* box) {
    if (box != current()) {
        {
            const QSignalBlocker blocker(mpScene);
            mpScene->clearSelection();
            if (box) {
                box->setSelected(true);
            }
        }
        tellSelection();
    }
    if (box) {
        ensureVisible(box);
    }
}

void FChainView::tellSelection() {
    if (FChainBox* box = current(); box && hasFocus()) {
        QAccessibleEvent event(box, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
    emit currentChanged();
}

FChainBox* FChainView::boxAt(const QPoint& position) const {
    for (QGraphicsItem* item : items(position)) {
        if (auto* box = qobject_cast<FChainBox*>(item->toGraphicsObject())) {
            return box;
        }
    }
    return nullptr;
}

void FChainView::mouseDoubleClickEvent(QMouseEvent* event) {
    const FChainBox* box = boxAt(event->pos());
    if (box && event->button() == Qt::LeftButton) {
        emit opened(box->computation());
    }
}

void FChainView::keyPressEvent(QKeyEvent* event) {
    FChainBox* box = current();
    const QList<FChainBox*>& all = mpScene->boxes();
    switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (FChainBox* next = box ? mpScene->nextTo(*box, static_cast<Qt::Key>(event->key())) : all.value(0)) {
                setCurrent(next);
            }
            return;
        case Qt::Key_Home:
            setCurrent(all.value(0));
            return;
        case Qt::Key_End:
            setCurrent(all.value(all.size() - 1));
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (box) {
                emit opened(box->computation());
            }
            return;
        default:
            QGraphicsView::keyPressEvent(event);
    }
}

void FChainView::contextMenuEvent(QContextMenuEvent* event) {
    const bool isByMouse = event->reason() == QContextMenuEvent::Mouse;
    FChainBox* box = isByMouse ? boxAt(event->pos()) : current();
    if (box) {
        setCurrent(box);
    }
    const QPoint place = isByMouse || !box ? event->pos() : mapFromScene(box->sceneBoundingRect().center());
    emit menuRequested(viewport()->mapToGlobal(place));
}

void FChainView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QGraphicsView::wheelEvent(event);
        return;
    }
    constexpr double unit = 1200;
    constexpr double least = 0.1;
    constexpr double most = 4;
    const double factor = std::pow(2, event->angleDelta().y() / unit * 4);
    const double now = transform().m11();
    const double scaled = qBound(least, now * factor, most) / now;
    setTransformationAnchor(AnchorUnderMouse);
    scale(scaled, scaled);
}

void FChainView::drawBackground(QPainter* painter, const QRectF& rect) {
    QGraphicsView::drawBackground(painter, rect);
    const QString text = mpScene->boxes().isEmpty() ? QString::fromLatin1(hint) : QString();
    // A screen reader can't see what is painted.
    if (accessibleDescription() != text) {
        setAccessibleDescription(text);
    }
    if (!text.isEmpty()) {
        painter->save();
        painter->resetTransform();
        painter->setPen(FStateColor::of(FStateColor::State::Secondary));
        const int margin = fontMetrics().height() / 3;
        painter->drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                          Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, text);
        painter->restore();
    }
}

void FChainView::changeEvent(QEvent* event) {
    QGraphicsView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
        mpScene->updateLook();
    }
}
