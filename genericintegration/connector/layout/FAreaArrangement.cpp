#include "genericintegration/connector/layout/FAreaArrangement.h"

#include "genericintegration/connector/layout/FLayoutItem.h"

#include <cmath>

namespace {

/** How many items of that length fit, but at least one. */
double fitting(double room, double length) {
    return std::max(1.0, std::floor(room / length));
}

double share(double weight, double factor, double least, double most) {
    return std::min(std::max(weight * factor, least), most);
}

double factor(double length, double weights) {
    return weights == 0 ? length : length / weights;
}

}  // namespace

void FAreaArrangement::arrange(QSize view, double barHeight) {
    view = view.expandedTo(mpRules->leastView);
    halve(view);
    if (overflows(0)) {
        divide(view);
    }
    if (overflows(barHeight)) {
        view.setHeight(static_cast<int>(view.height() - barHeight));
        divide(view.expandedTo(mpRules->leastView));
    }
    mBoundingRect = QRectF();
    for (int area = 0; area < filledAreas; ++area) {
        place(area, cells(area, barHeight));
    }
}

QPointF FAreaArrangement::origin() const {
    const QSizeF& size = mSizes[SoftConExportArea];
    return {-size.width(), -size.height()};
}

FAreaArrangement::Cells FAreaArrangement::cells(int area, double barHeight) const {
    Cells cells;
    const QList<FLayoutItem*> items = mpItems->value(area);
    if (items.empty()) {
        return cells;
    }
    const QSizeF item = items.front()->size;
    const auto index = static_cast<size_t>(area);
    const double rowWidth = mpRules->rowWidths[index] > 0 ? mpRules->rowWidths[index] : item.width();
    const QSizeF room = mSizes[index] - mpRules->margins;
    cells.rows = fitting(room.height() - barHeight, item.height() + mpRules->spacing);
    cells.columns = fitting(room.width(), rowWidth + mpRules->spacing);
    const double extra = std::ceil((items.size() - cells.columns * cells.rows) / cells.rows);
    cells.overflow = extra > 0;
    cells.columns += std::max(0.0, extra);
    return cells;
}

bool FAreaArrangement::overflows(double barHeight) const {
    for (int area = 0; area < filledAreas; ++area) {
        if (cells(area, barHeight).overflow) {
            return true;
        }
    }
    return false;
}

void FAreaArrangement::halve(QSize view) {
    const QSize whole(view.width() / 2, view.height() / 2);
    mSizes.fill(whole);
}

void FAreaArrangement::divide(QSize view) {
    const double width = view.width();
    const double height = view.height();
    const double perWidth = factor(width, mWeights.left + mWeights.right);
    const double perHeight = factor(height, mWeights.top + mWeights.bottom);
    const double left = share(mWeights.left, perWidth, mpRules->leastLeft, width - mpRules->leastRight);
    const double right = share(mWeights.right, perWidth, mpRules->leastRight, width - mpRules->leastLeft);
    const double most = height - mpRules->leastHeight;
    const double top = share(mWeights.top, perHeight, mpRules->leastHeight, most);
    const double bottom = share(mWeights.bottom, perHeight, mpRules->leastHeight, most);
    mSizes[SoftConInputArea] = {right, top};
    mSizes[SoftConOutputArea] = {right, bottom};
    mSizes[SoftConExportArea] = {left, top};
    mSizes[SoftConImportArea] = {left, bottom};
}

void FAreaArrangement::place(int area, const Cells& cells) {
    double row = 0;
    double column = 0;
    for (FLayoutItem* item : mpItems->value(area)) {
        placeItem(*item, row, column);
        double& fast = mpRules->fillsColumns ? row : column;
        double& slow = mpRules->fillsColumns ? column : row;
        if (++fast >= (mpRules->fillsColumns ? cells.rows : cells.columns)) {
            fast = 0;
            ++slow;
        }
    }
}

void FAreaArrangement::placeItem(FLayoutItem& item, double row, double column) {
    const auto index = static_cast<size_t>(item.area);
    const double width = mpRules->rowWidths[index] > 0 ? mpRules->rowWidths[index] : item.size.width();
    const double right = column * (width + mpRules->spacing);
    const double down = row * (item.size.height() + mpRules->spacing);
    const QPointF way(isLeftArea(item.area) ? -right : right, isUpperArea(item.area) ? -down : down);
    item.position = mpRules->first[index] + way - item.offset;
    const QPointF corner = item.position - QPointF(isLeftArea(item.area) ? mpRules->leftShift : 0, 0);
    mBoundingRect |= QRectF(corner, item.size);
}
