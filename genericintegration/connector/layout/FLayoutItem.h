#pragma once

#include "genericintegration/connector/layout/SoftConArea.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

/** What a layout knows about an item. Rectangles and points are relative to the item's position. */
struct FLayoutItem {
    SoftConArea area = SoftConNoArea;

    // The bounding rectangle: icon and frame together. A layout that changes the frame leaves it alone; whoever owns
    // the items brings it up to date before they are arranged.
    QSizeF size{};
    QPointF offset{};

    QString label{};  //!< the text as it is shown
    QSizeF labelSize{};
    QPointF labelPosition{};

    QSizeF icon{};
    QRectF frame{};
    QSizeF button{};
    QPointF buttonPosition{};

    QPointF position{};  //!< in the scene
};
