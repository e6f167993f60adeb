#include "host/gui/panels/FChainArrow.h"

#include "host/gui/base/FStateColor.h"
#include "host/gui/panels/FChainScene.h"

#include <QFontMetricsF>
#include <QPainter>

FChainArrow::FChainArrow(QPainterPath line, QString text, bool isFile, QPointF place, double room)
    : mLine(std::move(line)), mText(std::move(text)), mIsFile(isFile), mPlace(place), mRoom(room) {
    setZValue(-1);
    setToolTip(mText);
}

QString FChainArrow::shownText() const {
    return QFontMetricsF(scene()->font()).elidedText(mText, Qt::ElideRight, mRoom);
}

QRectF FChainArrow::textRect() const {
    const QFontMetricsF metrics(scene()->font());
    QRectF rect(0, 0, metrics.horizontalAdvance(shownText()), metrics.height());
    rect.moveCenter(mPlace);
    return rect;
}

QRectF FChainArrow::boundingRect() const {
    if (!scene()) {
        return {};
    }
    const double head = QFontMetricsF(scene()->font()).height();
    return mLine.boundingRect().united(textRect()).adjusted(-head, -head, head, head);
}

void FChainArrow::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) {
    Q_UNUSED(option)
    Q_UNUSED(widget)
    const auto& scene = static_cast<const FChainScene&>(*this->scene());
    const double line = QFontMetricsF(scene.font()).height();
    const QColor color = FStateColor::of(FStateColor::State::Secondary, scene.colors());
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(color, line / 10, mIsFile ? Qt::SolidLine : Qt::DashLine));
    painter->drawPath(mLine);
    const QPointF end = mLine.currentPosition();
    const double head = line / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawPolygon(QPolygonF({end, end + QPointF(-head, -head / 2), end + QPointF(-head, head / 2)}));

    const QRectF text = textRect();
    painter->setBrush(scene.colors().color(QPalette::Window));
    painter->drawRect(text.adjusted(-head / 3, 0, head / 3, 0));
    painter->setFont(scene.font());
    painter->setPen(scene.colors().color(QPalette::WindowText));
    painter->drawText(QPointF(text.left(), text.top() + QFontMetricsF(scene.font()).ascent()), shownText());
}
