#pragma once

#include "genericintegration/connector/layout/FSceneGeometry.h"

class QGraphicsScene;
class QGraphicsTextItem;

/** Says in each empty area of a connector's scene what belongs in it. The texts take no mouse events and no drops. */
class FAreaHints {
 public:
    explicit FAreaHints(QGraphicsScene& scene);

    void place(const FSceneGeometry& geometry, double titleBarHeight);
    void show(SoftConArea area, bool isEmpty);
    /** After a change of the palette. */
    void updateColors();

 private:
    std::array<QGraphicsTextItem*, filledAreas> mTexts;
};
