#pragma once

#include <QPointF>

/** How the type of a file is written on the icon of its item. */
struct FSoftConLayoutIconTextMeasurements {
    int fontSizeThreeLetters = 0;  //!< of a text of exactly three characters, in points
    int fontSizeOther = 0;
    QPointF gradientStart{};
    QPointF gradientStop{};
    bool outlined = true;  //!< an outline filled with a gradient; otherwise plain text
};
