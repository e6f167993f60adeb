#include "genericintegration/connector/FSoftwareConnectorItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "host/core/FClipboard.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FSvgDrawing.h"

#include <QGraphicsScene>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsView>
#include <QMenu>
#include <QScopedValueRollback>

FClassData FSoftwareConnectorItem::mClass("FSoftwareConnectorItem", &FObject::mClass);

FSoftwareConnectorItem::FSoftwareConnectorItem(FItemScene* scene, QGraphicsItem* parent, SoftConArea area,
                                               const QString& image)
    : mArea(area), mScene(scene), mLabelItem(new QGraphicsSimpleTextItem(this)) {
    setOwnedElsewhere();
    QObject::setParent(scene->asGraphicsScene());
    if (parent) {
        setParentItem(parent);
    } else {
        scene->asGraphicsScene()->addItem(this);
    }
    setPixmap(drawingOf(image));
    setAcceptHoverEvents(true);
    setImediateUpdate(true);
    setOutOfDate(true);
}

void FSoftwareConnectorItem::setPixmapSize(const QSize& size) {
    const double ratio = pixmap().devicePixelRatioF();
    QPixmap scaled = pixmap().scaled((QSizeF(size) * ratio).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    setPixmap(scaled);
}

QSize FSoftwareConnectorItem::pictureSize() const {
    const QPixmap picture = pixmap();
    return picture.isNull() ? QSize(0, 0) : (QSizeF(picture.size()) / picture.devicePixelRatioF()).toSize();
}

double FSoftwareConnectorItem::pixelRatio() const {
    const QGraphicsView* view = scene() ? scene()->views().value(0) : nullptr;
    return view ? view->devicePixelRatioF() : 1;
}

QPixmap FSoftwareConnectorItem::drawingOf(const QString& path) const {
    const FSvgDrawing drawing(path);
    return drawing.pixmap(drawing.size(), pixelRatio());
}

FItemScene* FSoftwareConnectorItem::getScene() const {
    return dynamic_cast<FItemScene*>(scene());
}

bool FSoftwareConnectorItem::doUpdate() const {
    // An update of a view changes what it shows.
    auto* self = const_cast<FSoftwareConnectorItem*>(this);
    const QScopedValueRollback<bool> refreshing(self->mIsRefreshing, true);
    self->refresh();
    return FObject::doUpdate();
}

void FSoftwareConnectorItem::copyFileName() {
    if (mLabelItem) {
        FClipboard::setText(getToolTip());
    }
}

void FSoftwareConnectorItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event) {
    auto* menu = new QMenu(event->widget());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(FIcons::get(QStringLiteral("edit-copy")), QStringLiteral("Copy File Name"), this,
                    &FSoftwareConnectorItem::copyFileName);
    menu->popup(event->screenPos());
}

void FSoftwareConnectorItem::dragEnterEvent(QGraphicsSceneDragDropEvent* event) {
    event->acceptProposedAction();
}

void FSoftwareConnectorItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event) {
    mCursor.enter();
    setToolTip(getToolTip());
    QGraphicsPixmapItem::hoverEnterEvent(event);
}

void FSoftwareConnectorItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event) {
    mCursor.leave();
    QGraphicsPixmapItem::hoverLeaveEvent(event);
}

void FSoftwareConnectorItem::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    event->accept();
}
