#include "tests/genericintegration/connector/layout/FLiteralLayout.h"

#include <algorithm>
#include <cmath>

FLiteralLayout::FLiteralLayout(Size size)
    : isList(size == Small),
      sp(isList ? 5 : 30),
      minW(isList ? 220 : 300),
      minH(isList          ? 240
           : size == Large ? 372
                           : 266),
      iw(isList          ? 0
         : size == Large ? 150
                         : 75),
      ih(isList          ? 0
         : size == Large ? 212
                         : 106) {}

void FLiteralLayout::calcItemRatios(const QList<FLayoutItem*>& items) {
    lists = {{0, {}}, {2, {}}, {1, {}}, {3, {}}};
    for (FLayoutItem* item : items) {
        if (item->area != 4) {
            lists[item->area].append(item);
        }
    }
    double width[4];
    double height[4];
    for (int area = 0; area < 4; ++area) {
        const QList<FLayoutItem*>& list = lists[area];
        const double n = list.size();
        width[area] = height[area] = 0;
        rowWidths[area] = 0;
        if (list.empty()) {
            continue;
        }
        if (!isList) {
            width[area] = height[area] = std::sqrt(n * list[0]->size.width() * list[0]->size.height());
            continue;
        }
        for (const FLayoutItem* item : list) {
            rowWidths[area] = std::max(rowWidths[area], item->labelSize.width());
        }
        for (FLayoutItem* item : list) {
            item->frame.setWidth(30 + item->icon.width() + 10 + item->button.width() + 10 + rowWidths[area] + 10);
        }
        rowWidths[area] = list.last()->frame.width();
        itemHeight = list[0]->size.height();
        width[area] = n * rowWidths[area];
        height[area] = n * itemHeight;
    }
    left = std::max(width[3], width[1]);
    right = std::max(width[2], width[0]);
    top = std::max(height[0], height[1]);
    bottom = std::max(height[2], height[3]);
    for (int area = 0; area < 4; ++area) {
        const bool isReversed = isList && area < 2;
        std::stable_sort(lists[area].begin(), lists[area].end(), [=](const FLayoutItem* a, const FLayoutItem* b) {
            const int order = QString::localeAwareCompare(a->label, b->label);
            return isReversed ? order > 0 : order < 0;
        });
    }
}

int FLiteralLayout::extra(int area, QSizeF size, double bar, int& rows, int& columns) const {
    const QList<FLayoutItem*>& list = lists[area];
    const double w = isList ? rowWidths[area] : list[0]->size.width();
    const double h = list[0]->size.height();
    rows = std::max(1, static_cast<int>(std::floor((size.height() - bar - (isList ? 60 : 2 * sp)) / (h + sp))));
    columns = std::max(1, static_cast<int>(std::floor((size.width() - (isList ? 60 : sp)) / (w + sp))));
    return static_cast<int>(std::ceil(static_cast<double>(list.size() - columns * rows) / rows));
}

void FLiteralLayout::divide(const QRect& view, QSizeF* sizes) const {
    const double perWidth = left + right == 0 ? view.width() : view.width() / (left + right);
    const double perHeight = top + bottom == 0 ? view.height() : view.height() / (top + bottom);
    const double leastLeft = isList ? std::max(areaMinWidth(3), areaMinWidth(1)) : minW;
    const double leastRight = isList ? std::max(areaMinWidth(2), areaMinWidth(0)) : minW;
    const double leftWidth = std::min(std::max(left * perWidth, leastLeft), view.width() - leastRight);
    const double rightWidth = std::min(std::max(right * perWidth, leastRight), view.width() - leastLeft);
    const double topHeight = std::min(std::max(top * perHeight, minH), view.height() - minH);
    const double bottomHeight = std::min(std::max(bottom * perHeight, minH), view.height() - minH);
    sizes[0] = {rightWidth, topHeight};
    sizes[2] = {rightWidth, bottomHeight};
    sizes[1] = {leftWidth, topHeight};
    sizes[3] = {leftWidth, bottomHeight};
}

void FLiteralLayout::place(FLayoutItem& item, int area, int row, int column, double title) {
    const double w = item.size.width();
    const double h = item.size.height();
    const double ox = item.offset.x();
    const double oy = item.offset.y();
    const bool isLeft = area == 1 || area == 3;
    double x = 0;
    double y = 0;
    if (isList) {
        const double W = rowWidths[area];
        const double dy = itemHeight + 30 + 3 * sp;
        x = isLeft ? -(W + 30) - column * (W + sp) - ox : 30 + column * (W + sp) - ox;
        y = area < 2 ? -dy - row * (h + sp) - oy : 60 + row * (h + sp) - oy;
    } else {
        const double dx = 30 + 10 + iw + sp;
        const double dy = 30 + 10 + ih + 2 * sp;
        x = isLeft ? -dx - column * (w + sp) - ox : column * (w + sp) + sp - ox;
        y = area < 2 ? -dy - row * (h + sp) - oy : title + 2 * sp + row * (h + sp) - oy;
    }
    item.position = {x, y};
    bounds = bounds.united(QRectF(isList && isLeft ? x - 100 : x, y, w, h));
}

QPointF FLiteralLayout::arrangeItems(QRect view, double bar, double title) {
    bounds = QRectF();
    const double minView =
        isList ? std::max(areaMinWidth(3) + areaMinWidth(2), areaMinWidth(1) + areaMinWidth(0)) : 2 * minW;
    view.setHeight(std::max(view.height(), static_cast<int>(2 * minH)));
    view.setWidth(std::max(view.width(), static_cast<int>(minView)));
    QSizeF sizes[4];
    std::fill_n(sizes, 4, QSizeF(view.width() / 2, view.height() / 2));
    int rows = 0;
    int columns = 0;
    bool isTooSmall = isSecondPass;
    for (int area = 0; area < 4; ++area) {
        isTooSmall |= !lists[area].empty() && extra(area, sizes[area], 0, rows, columns) > 0;
    }
    if (isTooSmall) {
        divide(view, sizes);
    }
    for (int area = 0; area < 4; ++area) {
        if (lists[area].empty()) {
            continue;
        }
        const int more = extra(area, sizes[area], bar, rows, columns);
        if (more > 0 && !isSecondPass) {
            isSecondPass = true;
            view.setHeight(static_cast<int>(view.height() - bar));
            const QPointF origin = arrangeItems(view, bar, title);
            isSecondPass = false;
            return origin;
        }
        columns += std::max(0, more);
        for (int i = 0; i < lists[area].size(); ++i) {
            place(*lists[area][i], area, isList ? i % rows : i / columns, isList ? i / rows : i % columns, title);
        }
    }
    if (!isList) {
        bounds.setLeft(bounds.left() - sp);
    }
    return {-sizes[1].width(), -sizes[1].height()};
}

void FLiteralLayout::calcSceneRect(const QRect& view, double bar, double title, int insetX, int insetY, QRectF& scene,
                                   QRectF& area) {
    const QPointF p = arrangeItems(view, bar, title);
    scene = QRectF(std::min(p.x(), -minW), std::min(p.y(), -minH), view.width(), view.height());
    if (view.height() < 2 * minH) {
        scene = QRectF(scene.x(), -minH, scene.width(), 2 * minH);
    }
    area = scene;
    bool wasMoved = false;
    if (bounds.left() < scene.left()) {
        wasMoved = true;
        scene = QRectF(bounds.left() - sp, scene.y(), scene.right() - (bounds.left() - sp), scene.height());
        area = QRectF(scene.x() + insetX / 2.0, scene.y(), scene.width() - insetX, scene.height());
        if (view.height() >= 2 * minH) {
            scene.setHeight(scene.height() - bar);
            area.setHeight(scene.height());
        } else {
            area = QRectF(area.x(), area.y() + insetY / 2.0, area.width(), area.height() - insetY);
        }
    }
    if (bounds.right() > scene.right()) {
        scene.setWidth(bounds.right() + sp - scene.x());
        if (!wasMoved) {
            scene.setHeight(scene.height() - bar);
        }
        area = QRectF(scene.x() + insetX / 2.0, area.y(), scene.width() - insetX, area.height());
    }
}
