#include "genericintegration/connector/layout/FSoftConGridLayout.h"

#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FLabelMetrics.h"
#include "genericintegration/connector/layout/FLayoutItem.h"

#include <cmath>

QPointF FSoftConGridLayout::arrangeItems(const QRect& view, double barHeight, double titleBarHeight) {
    const double spacing = getItemSpacing();
    const double left = -(getFrameRight() + getFrameLeft() + getIconWidth() + spacing);
    const double up = -(getFrameBottom() + getFrameTop() + getIconHeight() + 2 * spacing);
    const double down = titleBarHeight + 2 * spacing;
    FAreaRules rules;
    rules.spacing = spacing;
    rules.margins = {spacing, 2 * spacing};
    rules.leastLeft = rules.leastRight = getMinAreaWidth();
    rules.leastHeight = getMinAreaHeight();
    rules.leastView = QSizeF(2 * getMinAreaWidth(), 2 * getMinAreaHeight()).toSize();
    rules.first = {QPointF(spacing, up), QPointF(left, up), QPointF(spacing, down), QPointF(left, down)};
    const QPointF origin = arrangeByRules(rules, view, barHeight);
    mBoundingRect.setLeft(mBoundingRect.left() - spacing);
    return origin;
}

void FSoftConGridLayout::setupItem(FLayoutItem& item, const QString& name, const FLabelMetrics& metrics,
                                   bool noFrame) const {
    const double border = getFrameRight() + getFrameLeft();
    const double limit = border + item.icon.width() - 4;
    item.label = metrics.elideMiddle(FItemCaption::lastPart(name), static_cast<int>(limit));
    item.labelSize = {metrics.width(item.label), static_cast<double>(metrics.height)};
    item.labelPosition = {(limit - getFrameLeft() - 4 - item.labelSize.width()) * 0.5, item.icon.height() + 2};
    if (noFrame) {
        return;
    }
    item.frame = QRectF(-getFrameLeft(), -getFrameTop(), border + item.icon.width() + 2,
                        getFrameBottom() + getFrameTop() + item.icon.height());
    item.buttonPosition = {item.icon.width() + 1, 0};
}

int FSoftConGridLayout::getIconHeight() const {
    return static_cast<int>(std::floor(std::sqrt(2.0) * getIconWidth() + 0.5));
}
