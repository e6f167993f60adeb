#include "genericintegration/connector/FSoftConComputationItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "host/gui/base/FIcons.h"

#include <QFontMetrics>
#include <QGraphicsSceneContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPalette>

FClassData FSoftConComputationItem::mClass("FSoftConComputationItem", &FSoftConObjectItem::mClass);

FSoftConComputationItem::FSoftConComputationItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object,
                                                 SoftConArea area, const QString& image)
    : FClass(scene, parent, object, area, image), mImage(image), mArrow(new QGraphicsPixmapItem(this)) {
    scene->setComputationItemSize(pictureSize());
    mArrow->setPos(0, pictureSize().height());
    mArrow->installSceneEventFilter(this);
    paintPictures();
}

void FSoftConComputationItem::updateLook() {
    paintPictures();
}

void FSoftConComputationItem::paintPictures() {
    setPixmap(drawingOf(mImage));
    mArrow->setPixmap(drawingOf(QStringLiteral(":/computationArrow")));
    mLabelItem->setBrush(QGuiApplication::palette().text());
}

void FSoftConComputationItem::refresh() {
    const auto* computation = dynamic_cast<FExternComputation*>(mObject.getStored());
    if (!computation) {
        return;
    }
    const QFontMetrics metrics(mLabelItem->font());
    const int width = pictureSize().width();
    const QString name = metrics.elidedText(computation->getName(), Qt::ElideMiddle, width - 72);
    const int left = std::max(65, width / 2 - metrics.horizontalAdvance(name) / 2);
    const int top = pictureSize().height() / 2 - metrics.height() / 2;
    mLabelItem->setText(name);
    mLabelItem->setPos(QPoint(left, top));
}

bool FSoftConComputationItem::sceneEventFilter(QGraphicsItem* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::GraphicsSceneContextMenu) {
        return false;
    }
    contextMenuEvent(static_cast<QGraphicsSceneContextMenuEvent*>(event));
    return true;
}

void FSoftConComputationItem::contextMenuEvent(QGraphicsSceneContextMenuEvent* event) {
    const auto* computation = dynamic_cast<FExternComputation*>(mObject.getStored());
    FItemScene* scene = getScene();
    if (!scene || !computation) {
        return;
    }
    auto* menu = new QMenu(event->widget());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this, menu, scene](const char* text, const char* icon, void (FItemScene::*run)()) {
        return menu->addAction(FIcons::get(QString::fromLatin1(icon)), QString::fromLatin1(text), this,
                               [scene, run] { (scene->*run)(); });
    };
    add("Run", "media-playback-start", &FItemScene::runComputation);
    add("Read existing result files", "view-refresh", &FItemScene::readResults)
        ->setEnabled(computation->canRereadResults());
    add("Show preview of input files", "document-preview", &FItemScene::showOutputFilesPreview);
    add("Export software connector to file", "document-save-as", &FItemScene::exportIntegration);
    menu->popup(event->screenPos());
}
