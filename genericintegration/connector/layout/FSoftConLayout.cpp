#include "genericintegration/connector/layout/FSoftConLayout.h"

#include "genericintegration/connector/layout/FLayoutItem.h"

#include <cmath>

namespace {

bool isBefore(const FLayoutItem* item, const FLayoutItem* other) {
    return QString::localeAwareCompare(item->label, other->label) < 0;
}

void insetHorizontally(const QRectF& scene, int inset, QRectF& area) {
    area.setLeft(scene.left() + inset / 2.0);
    area.setWidth(scene.width() - inset);
}

}  // namespace

void FSoftConLayout::calcItemRatios(const QList<FLayoutItem*>& items) {
    collectItems(items);
    std::array<QSizeF, filledAreas> needs;
    for (int area = 0; area < filledAreas; ++area) {
        const QList<FLayoutItem*>& those = mAreaItems[area];
        const QSizeF item = those.empty() ? QSizeF(0, 0) : those.front()->size;
        const double length = std::sqrt(those.size() * item.width() * item.height());
        needs[static_cast<size_t>(area)] = {length, length};
    }
    setWeights(needs);
    for (int area = 0; area < filledAreas; ++area) {
        sortItems(area, false);
    }
}

void FSoftConLayout::calcSceneRect(const QRect& view, double barHeight, double titleBarHeight, int insetX, int insetY,
                                   QRectF& sceneRect, QRectF& areaRect) {
    const QPointF origin = arrangeItems(view, barHeight, titleBarHeight);
    const double leastHeight = 2 * getMinAreaHeight();
    const bool isFlat = view.height() < leastHeight;
    sceneRect = QRectF(std::min(origin.x(), -getMinAreaWidth()), std::min(origin.y(), -getMinAreaHeight()),
                       view.width(), view.height());
    if (isFlat) {
        sceneRect = QRectF(sceneRect.x(), -getMinAreaHeight(), sceneRect.width(), leastHeight);
    }
    areaRect = sceneRect;
    const bool extendsLeft = mBoundingRect.left() < sceneRect.left();
    if (extendsLeft) {
        sceneRect.setLeft(mBoundingRect.left() - getItemSpacing());
        if (isFlat) {
            areaRect.adjust(0, insetY / 2.0, 0, -insetY / 2.0);
        } else {
            sceneRect.setHeight(sceneRect.height() - barHeight);
            areaRect.setHeight(sceneRect.height());
        }
        insetHorizontally(sceneRect, insetX, areaRect);
    }
    if (mBoundingRect.right() > sceneRect.right()) {
        sceneRect.setRight(mBoundingRect.right() + getItemSpacing());
        if (!extendsLeft) {
            sceneRect.setHeight(sceneRect.height() - barHeight);
        }
        insetHorizontally(sceneRect, insetX, areaRect);
    }
}

QPointF FSoftConLayout::arrangeItems(const QRect& /*view*/, double /*barHeight*/, double /*titleBarHeight*/) {
    return {};
}

void FSoftConLayout::setupItem(FLayoutItem& /*item*/, const QString& /*name*/, const FLabelMetrics& /*metrics*/,
                               bool /*noFrame*/) const {}

void FSoftConLayout::itemChanged(FLayoutScene& /*scene*/) const {}

void FSoftConLayout::placeCentreItem(FLayoutItem& item) const {
    item.position = {-item.size.width() / 2, -30};
}

void FSoftConLayout::collectItems(const QList<FLayoutItem*>& items) {
    mAreaItems.clear();
    for (int area = 0; area < filledAreas; ++area) {
        mAreaItems[area] = {};
    }
    for (FLayoutItem* item : items) {
        if (item->area >= 0 && item->area < filledAreas) {
            mAreaItems[item->area].append(item);
        }
    }
}

void FSoftConLayout::setWeights(const std::array<QSizeF, filledAreas>& needs) {
    mLeftWeight = std::max(needs[SoftConImportArea].width(), needs[SoftConExportArea].width());
    mRightWeight = std::max(needs[SoftConOutputArea].width(), needs[SoftConInputArea].width());
    mTopWeight = std::max(needs[SoftConInputArea].height(), needs[SoftConExportArea].height());
    mBottomWeight = std::max(needs[SoftConOutputArea].height(), needs[SoftConImportArea].height());
}

void FSoftConLayout::sortItems(int area, bool descending) {
    QList<FLayoutItem*>& items = mAreaItems[area];
    std::stable_sort(items.begin(), items.end(), [descending](const FLayoutItem* item, const FLayoutItem* other) {
        return descending ? isBefore(other, item) : isBefore(item, other);
    });
}

QPointF FSoftConLayout::arrangeByRules(const FAreaRules& rules, const QRect& view, double barHeight) {
    FAreaArrangement arrangement(rules, {mLeftWeight, mRightWeight, mTopWeight, mBottomWeight}, mAreaItems);
    arrangement.arrange(view.size(), barHeight);
    mBoundingRect = arrangement.boundingRect();
    return arrangement.origin();
}
