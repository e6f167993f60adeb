#pragma once

#include "genericintegration/connector/layout/FLayoutItem.h"
#include "genericintegration/connector/layout/FSceneGeometry.h"

#include <vector>

class QGraphicsScene;
class QGraphicsTextItem;

/** Says in each empty area of a connector's scene what belongs in it. The texts take no mouse events and no drops. */
class FAreaHints {
 public:
    explicit FAreaHints(QGraphicsScene& scene);

    void place(const FSceneGeometry& geometry, double titleBarHeight);
    /** Shows the hints of those areas that none of the items is in. */
    void update(const std::vector<FLayoutItem>& items);
    /** After a change of the palette. */
    void updateColors();

 private:
    std::array<QGraphicsTextItem*, filledAreas> mTexts;
};
