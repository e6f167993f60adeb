#include "genericintegration/connector/FSoftConObjectItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSceneColors.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FLabelMetrics.h"
#include "genericintegration/connector/layout/FSoftConLayout.h"
#include "host/core/FSelectionSet.h"
#include "host/gui/base/FIcons.h"

#include <QAction>
#include <QFontMetrics>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QPixmapCache>
#include <QPointer>
#include <QToolButton>

namespace {

FLabelMetrics metricsOf(const QFont& font) {
    const QFontMetrics metrics(font);
    return {[metrics](const QString& text) { return static_cast<double>(metrics.horizontalAdvance(text)); },
            [metrics](const QString& text, int width) { return metrics.elidedText(text, Qt::ElideMiddle, width); },
            metrics.height()};
}

}  // namespace

FClassData FSoftConObjectItem::mClass("FSoftConObjectItem", &FSoftwareConnectorItem::mClass);

FSoftConObjectItem::FSoftConObjectItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object,
                                       SoftConArea area, const QString& image)
    : FClass(scene, parent, area, image) {
    setFlag(ItemIsFocusable);
    setObject(object);
}

FSoftConObjectItem::~FSoftConObjectItem() {
    mObject.unregisterClient(this);
}

void FSoftConObjectItem::init() {
    mFrame = new QGraphicsRectItem(this);
    mFrame->setAcceptHoverEvents(true);
    mFrame->setFlag(ItemStacksBehindParent);
    paintFrame();
    mFrame->installSceneEventFilter(this);

    auto* button = new QToolButton;
    button->setObjectName(QStringLiteral("deleteButton"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    // The frame behind shows through.
    button->setAttribute(Qt::WA_NoSystemBackground);
    mDeleteProxy = new QGraphicsProxyWidget(this);
    mDeleteProxy->setWidget(button);
    auto* action = new QAction(FIcons::get(QStringLiteral("edit-delete")), QStringLiteral("Delete"), mDeleteProxy);
    button->setDefaultAction(action);
    button->setAccessibleName(action->text());
    mDeleteProxy->setPos(pictureSize().width() + 1, 0);
    QObject::connect(button, &QToolButton::triggered, this, [this] {
        if (FItemScene* scene = getScene()) {
            scene->deleteItem(this);
        }
    });
}

void FSoftConObjectItem::paintFrame() {
    mFrame->setBrush(FSceneColors::frame());
    mFrame->setPen(QPen(FSceneColors::frameLine(), 1, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    mLabelItem->setBrush(FSceneColors::caption());
}

void FSoftConObjectItem::updateLook() {
    if (mFrame) {
        paintFrame();
    }
    updateItem();
}

bool FSoftConObjectItem::getPreviewText(QString& /*text*/) {
    return false;
}

void FSoftConObjectItem::selectObject() {
    if (dynamic_cast<FManaged*>(mObject.getStored())) {
        FSelectionSet::instance()->setSelection({mObject});
    }
}

void FSoftConObjectItem::createObject(const QString& /*path*/, const QString& /*relativePath*/) {}

void FSoftConObjectItem::updateItem() {
    if (mLabelItem) {
        setupItem(mLabelItem->text(), false);
    }
    markOutOfDate();
}

void FSoftConObjectItem::release() {
    mCursor.clear();
    setObject({});
    deleteLater();
}

void FSoftConObjectItem::setObject(const FExpr<FObject>& object) {
    mObject.unregisterClient(this);
    mObject = object;
    mObject.registerClient(this);
}

FLayoutItem FSoftConObjectItem::toLayoutItem() const {
    FLayoutItem item;
    const QRectF bounding = boundingRect();
    item.area = getArea();
    item.size = bounding.size();
    item.offset = bounding.topLeft();
    item.position = pos();
    item.icon = pictureSize();
    item.label = mLabelItem->text();
    item.labelSize = mLabelItem->boundingRect().size();
    item.labelPosition = mLabelItem->pos();
    if (mFrame) {
        item.frame = mFrame->rect();
        item.button = mDeleteProxy->size();
        item.buttonPosition = mDeleteProxy->pos();
    }
    return item;
}

void FSoftConObjectItem::fit(FLayoutItem& item) const {
    if (mFrame) {
        const double line = mFrame->pen().widthF() / 2;
        const QRectF bounding = QGraphicsPixmapItem::boundingRect() | item.frame.adjusted(-line, -line, line, line);
        item.size = bounding.size();
        item.offset = bounding.topLeft();
    }
}

void FSoftConObjectItem::applyLayout(const FLayoutItem& item) {
    setPos(item.position);
    mLabelItem->setText(item.label);
    mLabelItem->setPos(item.labelPosition);
    if (mFrame) {
        prepareGeometryChange();
        mFrame->setRect(item.frame);
        mDeleteProxy->setPos(item.buttonPosition);
    }
}

QRectF FSoftConObjectItem::boundingRect() const {
    const QRectF picture = QGraphicsPixmapItem::boundingRect();
    return mFrame ? picture | mFrame->boundingRect() : picture;
}

void FSoftConObjectItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    FSoftwareConnectorItem::paint(painter, option, widget);
    if (!hasFocus()) {
        return;
    }
    // One line that differs from what is around the item, and one that differs from the picture.
    constexpr double width = 2;
    const QPalette palette = QGuiApplication::palette();
    const QRectF outer = boundingRect().adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(palette.color(QPalette::Base), width));
    painter->drawRect(outer.adjusted(width, width, -width, -width));
    painter->setPen(QPen(palette.color(QPalette::Highlight), width));
    painter->drawRect(outer);
}

void FSoftConObjectItem::setupItem(const QString& name, bool noFrame) {
    const FItemScene* scene = getScene();
    const FSoftConLayout* layout = scene ? scene->getLayout() : nullptr;
    if (layout) {
        FLayoutItem item = toLayoutItem();
        layout->setupItem(item, name, metricsOf(mLabelItem->font()), noFrame);
        applyLayout(item);
    }
}

void FSoftConObjectItem::placeCaption(const QString& text) {
    FItemScene* scene = getScene();
    if (!text.isEmpty() && scene && scene->getLayout()) {
        setupItem(text, true);
        scene->getLayout()->itemChanged(*scene);
    }
}

void FSoftConObjectItem::paintIcon(const QString& prefix, const QString& name, const FItemIcon::Colors& colors) {
    const FItemScene* scene = getScene();
    const FSoftConLayout* layout = scene ? scene->getLayout() : nullptr;
    if (!layout) {
        return;
    }
    // Many items show the same few types.
    const QString path = prefix + layout->getSizeName();
    const QString shown = name.startsWith(QLatin1String(":/")) ? name : FItemCaption::typeText(name);
    const FItemIcon::Extent extent{{layout->getIconWidth(), layout->getIconHeight()}, pixelRatio()};
    const QString key = path + u'|' + shown + u'|' + QString::number(extent.ratio);
    QPixmap icon;
    if (!QPixmapCache::find(key, &icon)) {
        icon = QPixmap::fromImage(FItemIcon::ofFile(path, extent, name, layout->getIconTextMeasurements(), colors));
        QPixmapCache::insert(key, icon);
    }
    setPixmap(icon);
}

void FSoftConObjectItem::markOutOfDate() {
    if (!isRefreshing()) {
        setOutOfDate(true);
    }
}

bool FSoftConObjectItem::sceneEventFilter(QGraphicsItem* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::GraphicsSceneHoverEnter:
            hoverEnterEvent(static_cast<QGraphicsSceneHoverEvent*>(event));
            watched->setToolTip(getToolTip());
            return true;
        case QEvent::GraphicsSceneHoverLeave:
            hoverLeaveEvent(static_cast<QGraphicsSceneHoverEvent*>(event));
            return true;
        case QEvent::GraphicsSceneMousePress:
            mousePressEvent(static_cast<QGraphicsSceneMouseEvent*>(event));
            return true;
        case QEvent::GraphicsSceneMouseRelease:
            mouseReleaseEvent(static_cast<QGraphicsSceneMouseEvent*>(event));
            return true;
        case QEvent::GraphicsSceneMouseDoubleClick: {
            const QPointer<QObject> self(this);
            mouseDoubleClickEvent(static_cast<QGraphicsSceneMouseEvent*>(event));
            // Another tab takes the item from under the pointer.
            if (self) {
                mCursor.clear();
            }
            return true;
        }
        default:
            return FSoftwareConnectorItem::sceneEventFilter(watched, event);
    }
}

bool FSoftConObjectItem::isEmphasized() const {
    return isUnderPointer() || hasFocus() || FSelectionSet::instance()->contains(mObject.getStored());
}

void FSoftConObjectItem::tellEmphasis() {
    if (FItemScene* scene = getScene()) {
        scene->emphasisChanged(this);
    }
}

void FSoftConObjectItem::focusInEvent(QFocusEvent* event) {
    QGraphicsItem::update();
    tellEmphasis();
    FSoftwareConnectorItem::focusInEvent(event);
}

void FSoftConObjectItem::focusOutEvent(QFocusEvent* event) {
    QGraphicsItem::update();
    tellEmphasis();
    FSoftwareConnectorItem::focusOutEvent(event);
}

void FSoftConObjectItem::hoverEnterEvent(QGraphicsSceneHoverEvent* event) {
    FSoftwareConnectorItem::hoverEnterEvent(event);
    tellEmphasis();
}

void FSoftConObjectItem::hoverLeaveEvent(QGraphicsSceneHoverEvent* event) {
    FSoftwareConnectorItem::hoverLeaveEvent(event);
    tellEmphasis();
}

// Also on its frame, which can't have the focus itself.
void FSoftConObjectItem::mousePressEvent(QGraphicsSceneMouseEvent* event) {
    FSoftwareConnectorItem::mousePressEvent(event);
    // The release after a double click may have gone to a question.
    mDoubleClicked = false;
    setFocus(Qt::MouseFocusReason);
}

void FSoftConObjectItem::mouseReleaseEvent(QGraphicsSceneMouseEvent* event) {
    FItemScene* scene = getScene();
    if (mDoubleClicked) {
        mDoubleClicked = false;
    } else if (scene) {
        scene->callEditor(this);
    }
    QGraphicsPixmapItem::mouseReleaseEvent(event);
}

bool FSoftConObjectItem::open() {
    FItemScene* scene = getScene();
    const FExpr<FGenIntFile> file(mObject);
    if (scene && mObject) {
        scene->gotoTab(file);
    }
    return static_cast<bool>(file);
}

void FSoftConObjectItem::mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) {
    // The base takes it for a press. While a question of `open` is shown, the item can go.
    QGraphicsPixmapItem::mouseDoubleClickEvent(event);
    mDoubleClicked = getScene() && mObject;
    open();
}
