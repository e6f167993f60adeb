#pragma once

#include "genericintegration/connector/layout/FAreaRules.h"

#include <QList>
#include <QMap>
#include <QRectF>

struct FLayoutItem;

/** How much of the room the areas need: the shares of the left and right width, of the top and bottom height. */
struct FAreaWeights {
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;
};

/**
 * Places items in rows and columns, from the centre outward. The areas are quarters of the view. If one of them can't
 * hold its items, the view is divided by need; if that isn't enough either, it is divided again, with room for a scroll
 * bar, and the area extends beyond the view.
 */
class FAreaArrangement {
 public:
    using Items = QMap<int, QList<FLayoutItem*>>;

    /** @param items  by area; outlives this object, as the rules do */
    FAreaArrangement(const FAreaRules& rules, const FAreaWeights& weights, const Items& items)
        : mpRules(&rules), mWeights(weights), mpItems(&items) {}

    void arrange(QSize view, double barHeight);

    /** The corner of the top left area, where the scene begins. */
    QPointF origin() const;
    /** Of all items; null without any. */
    const QRectF& boundingRect() const { return mBoundingRect; }

 private:
    struct Cells {
        double rows = 1;
        double columns = 1;
        bool overflow = false;  //!< there are more columns than the area has room for
    };

    Cells cells(int area, double barHeight) const;
    bool overflows(double barHeight) const;
    void halve(QSize view);
    void divide(QSize view);
    void place(int area, const Cells& cells);
    void placeItem(FLayoutItem& item, double row, double column);

    const FAreaRules* mpRules;
    FAreaWeights mWeights;
    const Items* mpItems;
    std::array<QSizeF, filledAreas> mSizes{};
    QRectF mBoundingRect;
};
