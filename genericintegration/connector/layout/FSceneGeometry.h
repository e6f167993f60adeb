#pragma once

#include "genericintegration/connector/layout/SoftConArea.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <array>

/** The sizes of what a connector's scene shows besides its items. */
struct FSceneSizes {
    double computationWidth = 0;
    double titleBarTop = 0;  //!< heights
    double titleBarLeft = 0;
    double titleBarRight = 0;
    QSizeF button{};
    double fontHeight = 0;                          //!< of the labels
    std::array<double, filledAreas> labelWidths{};  //!< of their texts, by area
};

/** Where a connector's scene shows its areas, and the panels, title bars, buttons and labels around its items. */
class FSceneGeometry {
 public:
    /** @param scene  contains the origin, where the areas meet */
    FSceneGeometry(const QRectF& scene, const FSceneSizes& sizes);

    /** The area that contains the point; on a common edge, the first one. */
    SoftConArea areaAt(const QPointF& point) const;

    std::array<QRectF, filledAreas> areas;
    QRectF splitLine;
    QRectF inputArea;
    QRectF resultArea;
    QRectF titleBarTop;
    QRectF titleBarLeft;
    QRectF titleBarRight;

    // By area.
    std::array<QPointF, filledAreas> addButtons;
    std::array<QPointF, filledAreas> docuButtons;
    std::array<QPointF, filledAreas> labels;
    QPointF connectButton;
    QPointF scanButton;

 private:
    void placeBars(const QRectF& scene, const FSceneSizes& sizes);
    void placeButtons(const QRectF& scene, const FSceneSizes& sizes);
    void placeLabels(const QRectF& scene, const FSceneSizes& sizes);
};
