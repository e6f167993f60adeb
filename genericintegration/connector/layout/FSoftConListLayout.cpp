#include "genericintegration/connector/layout/FSoftConListLayout.h"

#include "genericintegration/connector/layout/FLabelMetrics.h"
#include "genericintegration/connector/layout/FLayoutItem.h"
#include "genericintegration/connector/layout/FLayoutScene.h"

namespace {

/** Between an area's edges and its items. */
constexpr double gap = 30;

}  // namespace

void FSoftConListLayout::calcItemRatios(const QList<FLayoutItem*>& items) {
    collectItems(items);
    std::array<QSizeF, filledAreas> needs;
    for (int area = 0; area < filledAreas; ++area) {
        needs[static_cast<size_t>(area)] = measureRows(area);
    }
    setWeights(needs);
    for (int area = 0; area < filledAreas; ++area) {
        sortItems(area, isUpperArea(area));
    }
}

QSizeF FSoftConListLayout::measureRows(int area) {
    double& width = mAreaItemWidths[area];
    width = 0;
    const QList<FLayoutItem*>& items = mAreaItems[area];
    if (items.empty()) {
        return {0, 0};
    }
    double text = 0;
    for (const FLayoutItem* item : items) {
        text = std::max(text, item->labelSize.width());
    }
    for (FLayoutItem* item : items) {
        width =
            getFrameRight() + item->icon.width() + getFrameLeft() + item->button.width() + mTextGap + text + mTextGap;
        item->frame.setWidth(width);
    }
    mItemHeight = items.front()->size.height();
    return {items.size() * width, items.size() * mItemHeight};
}

QPointF FSoftConListLayout::arrangeItems(const QRect& view, double barHeight, double /*titleBarHeight*/) {
    const double spacing = getItemSpacing();
    const double up = -(mItemHeight + gap + 3 * spacing);
    const double down = 2 * gap;
    FAreaRules rules;
    rules.spacing = spacing;
    rules.margins = {2 * gap, 2 * gap};
    rules.leastLeft = std::max(getAreaMinWidth(SoftConImportArea), getAreaMinWidth(SoftConExportArea));
    rules.leastRight = std::max(getAreaMinWidth(SoftConOutputArea), getAreaMinWidth(SoftConInputArea));
    rules.leastHeight = getMinAreaHeight();
    const double below = getAreaMinWidth(SoftConImportArea) + getAreaMinWidth(SoftConOutputArea);
    const double above = getAreaMinWidth(SoftConExportArea) + getAreaMinWidth(SoftConInputArea);
    rules.leastView = {static_cast<int>(std::max(below, above)), static_cast<int>(2 * getMinAreaHeight())};
    for (int area = 0; area < filledAreas; ++area) {
        const auto index = static_cast<size_t>(area);
        rules.rowWidths[index] = mAreaItemWidths.value(area);
        rules.first[index] = {isLeftArea(area) ? -(rules.rowWidths[index] + gap) : gap, isUpperArea(area) ? up : down};
    }
    rules.fillsColumns = true;
    rules.leftShift = 100;
    return arrangeByRules(rules, view, barHeight);
}

void FSoftConListLayout::setupItem(FLayoutItem& item, const QString& name, const FLabelMetrics& metrics,
                                   bool /*noFrame*/) const {
    const double left = item.button.width() + mTextGap;
    item.label = name;
    item.labelSize = {metrics.width(name), static_cast<double>(metrics.height)};
    const int above = (static_cast<int>(item.icon.height()) - metrics.height) / 2;
    item.labelPosition = QPointF(item.icon.width() + mTextGap, above);
    item.frame = QRectF(-(getFrameLeft() + left), -getFrameTop(), mAreaItemWidths.value(item.area),
                        getFrameBottom() + getFrameTop() + item.icon.height());
    item.buttonPosition = {-left, 0};
}

void FSoftConListLayout::itemChanged(FLayoutScene& scene) const {
    scene.calcItemRatios();
    scene.requestRedraw();
}

double FSoftConListLayout::getAreaMinWidth(int area) const {
    return std::max(getMinAreaWidth(), mAreaItemWidths.value(area)) + 80;
}
