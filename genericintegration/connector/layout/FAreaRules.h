#pragma once

#include "genericintegration/connector/layout/SoftConArea.h"

#include <QPointF>
#include <QSize>
#include <QSizeF>

#include <array>

/** The numbers by which a layout fills its areas with rows and columns of items. */
struct FAreaRules {
    double spacing = 0;  //!< between items
    QSizeF margins{};    //!< of an area, both sides together

    // An overflowing area takes room from the others, but never below these bounds.
    double leastLeft = 0;
    double leastRight = 0;
    double leastHeight = 0;
    QSize leastView{};

    std::array<QPointF, filledAreas> first{};     //!< the corner of the first item, the one nearest to the centre
    std::array<double, filledAreas> rowWidths{};  //!< the width of all items of an area; 0: each has its own
    bool fillsColumns = false;                    //!< column by column instead of row by row
    double leftShift = 0;  //!< how much further left items of the left areas count in the bounding rectangle
};
