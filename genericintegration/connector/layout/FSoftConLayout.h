#pragma once

#include "genericintegration/connector/layout/FAreaArrangement.h"
#include "genericintegration/connector/layout/FSoftConLayoutIconTextMeasurements.h"

#include <QRect>

struct FLabelMetrics;
class FLayoutScene;

/**
 * Decides where the items of a connector go and how large its scene is. Each size of items has a layout of its own. The
 * origin of the scene is the centre, where the computation is.
 */
class FSoftConLayout {
 public:
    FSoftConLayout() = default;
    virtual ~FSoftConLayout() = default;
    FSoftConLayout(const FSoftConLayout&) = delete;
    FSoftConLayout& operator=(const FSoftConLayout&) = delete;

    /**
     * Takes the items, sorted by label, and computes how much room each area needs. To be called when the list of items
     * changes. The items of the four areas must live until the next call; others are passed over.
     */
    virtual void calcItemRatios(const QList<FLayoutItem*>& items);
    /**
     * Arranges the items and computes the rectangle of the scene.
     * @param insetX, insetY  of `areaRect` in `sceneRect`, both sides together, where the scene is larger than the view
     */
    virtual void calcSceneRect(const QRect& view, double barHeight, double titleBarHeight, int insetX, int insetY,
                               QRectF& sceneRect, QRectF& areaRect);
    /**
     * Sets the position of each item.
     * @param barHeight  of a horizontal scroll bar
     * @return the top left corner of the scene
     */
    virtual QPointF arrangeItems(const QRect& view, double barHeight, double titleBarHeight);
    /** Places label, frame and button of an item; with `noFrame`, only the label where the layout allows it. */
    virtual void setupItem(FLayoutItem& item, const QString& name, const FLabelMetrics& metrics, bool noFrame) const;
    /** To be called when an item got another label or size. */
    virtual void itemChanged(FLayoutScene& scene) const;
    virtual void placeCentreItem(FLayoutItem& item) const;

    virtual int getIconWidth() const { return 0; }
    virtual int getIconHeight() const { return 0; }
    virtual double getMinAreaWidth() const { return 0; }
    virtual double getMinAreaHeight() const { return 0; }
    virtual double getItemSpacing() const { return 0; }
    virtual double getFrameLeft() const { return 0; }
    virtual double getFrameTop() const { return 0; }
    virtual double getFrameRight() const { return 0; }
    virtual double getFrameBottom() const { return 0; }
    virtual FSoftConLayoutIconTextMeasurements getIconTextMeasurements() const { return {}; }
    /** As users and the names of images know it. */
    virtual QString getSizeName() const { return {}; }

 protected:
    /** The items of the four areas, in the order given. */
    void collectItems(const QList<FLayoutItem*>& items);
    /** @param needs  of each area, as width and height */
    void setWeights(const std::array<QSizeF, filledAreas>& needs);
    void sortItems(int area, bool descending);
    QPointF arrangeByRules(const FAreaRules& rules, const QRect& view, double barHeight);

    QRectF mBoundingRect;
    FAreaArrangement::Items mAreaItems;
    double mLeftWeight = 0;
    double mRightWeight = 0;
    double mTopWeight = 0;
    double mBottomWeight = 0;
};
