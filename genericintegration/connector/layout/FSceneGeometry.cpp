#include "genericintegration/connector/layout/FSceneGeometry.h"

FSceneGeometry::FSceneGeometry(const QRectF& scene, const FSceneSizes& sizes) {
    const double left = scene.left();
    const double top = scene.top();
    const double right = scene.right();
    const double bottom = scene.bottom();
    areas[SoftConExportArea] = {left, top, -left, -top};
    areas[SoftConInputArea] = {0, top, right, -top};
    areas[SoftConImportArea] = {left, 0, -left, bottom};
    areas[SoftConOutputArea] = {0, 0, right, bottom};
    splitLine = {0, top, 1, scene.height()};
    inputArea = {left, top, scene.width(), -top};
    resultArea = {left, 0, scene.width(), bottom};
    placeBars(scene, sizes);
    placeButtons(scene, sizes);
    placeLabels(scene, sizes);
}

SoftConArea FSceneGeometry::areaAt(const QPointF& point) const {
    for (int area = 0; area < filledAreas; ++area) {
        if (areas[static_cast<size_t>(area)].contains(point)) {
            return static_cast<SoftConArea>(area);
        }
    }
    return SoftConNoArea;
}

void FSceneGeometry::placeBars(const QRectF& scene, const FSceneSizes& sizes) {
    const double half = sizes.computationWidth * 0.5;
    titleBarTop = {scene.left(), scene.top(), scene.width(), sizes.titleBarTop};
    titleBarLeft = {scene.left(), 0, -(half + scene.left()), sizes.titleBarLeft};
    titleBarRight = {half, 0, scene.right() - half, sizes.titleBarRight};
}

void FSceneGeometry::placeButtons(const QRectF& scene, const FSceneSizes& sizes) {
    const double margin = (sizes.titleBarTop - sizes.button.height()) * 0.5;
    const QPointF step(sizes.button.width() + margin, 0);
    const double outerLeft = scene.left() + margin;
    const double outerRight = scene.right() - step.x();
    addButtons[SoftConInputArea] = {outerRight, scene.top() + margin};
    connectButton = addButtons[SoftConInputArea] - step;
    docuButtons[SoftConInputArea] = connectButton - step;
    addButtons[SoftConExportArea] = {outerLeft, scene.top() + margin};
    docuButtons[SoftConExportArea] = addButtons[SoftConExportArea] + step;
    addButtons[SoftConOutputArea] = {outerRight, margin};
    docuButtons[SoftConOutputArea] = addButtons[SoftConOutputArea] - step;
    addButtons[SoftConImportArea] = {outerLeft, margin};
    scanButton = addButtons[SoftConImportArea] + step;
    docuButtons[SoftConImportArea] = scanButton + step;
}

void FSceneGeometry::placeLabels(const QRectF& scene, const FSceneSizes& sizes) {
    // Each label is centred by the width of another one.
    constexpr std::array<size_t, filledAreas> measured{SoftConOutputArea, SoftConInputArea, SoftConImportArea,
                                                       SoftConExportArea};
    const double margin = (sizes.titleBarTop - sizes.fontHeight) * 0.5;
    for (int area = 0; area < filledAreas; ++area) {
        const auto index = static_cast<size_t>(area);
        const double width = sizes.labelWidths[measured[index]];
        const double x = isLeftArea(area) ? scene.left() - (width + scene.left()) * 0.5 : (scene.right() - width) * 0.5;
        labels[index] = {x, (isUpperArea(area) ? scene.top() : 0) + margin};
    }
}
