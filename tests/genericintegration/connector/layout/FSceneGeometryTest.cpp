#include "genericintegration/connector/layout/FSceneGeometry.h"

#include <gtest/gtest.h>

namespace {

TEST(FSceneGeometryTest, everythingAroundTheItems) {
    FSceneSizes sizes;
    sizes.computationWidth = 120;
    sizes.titleBarTop = 30;
    sizes.titleBarLeft = 31;
    sizes.titleBarRight = 32;
    sizes.button = {22, 20};
    sizes.fontHeight = 14;
    sizes.labelWidths = {50, 60, 70, 80};
    const FSceneGeometry geometry(QRectF(-400, -300, 1000, 500), sizes);

    EXPECT_EQ(geometry.areas[SoftConInputArea], QRectF(0, -300, 600, 300));
    EXPECT_EQ(geometry.areas[SoftConExportArea], QRectF(-400, -300, 400, 300));
    EXPECT_EQ(geometry.areas[SoftConOutputArea], QRectF(0, 0, 600, 200));
    EXPECT_EQ(geometry.areas[SoftConImportArea], QRectF(-400, 0, 400, 200));
    EXPECT_EQ(geometry.areaAt({300, 100}), SoftConOutputArea);
    EXPECT_EQ(geometry.areaAt({-300, 100}), SoftConImportArea);
    EXPECT_EQ(geometry.areaAt({-300, -100}), SoftConExportArea);
    EXPECT_EQ(geometry.areaAt({0, 0}), SoftConInputArea);
    EXPECT_EQ(geometry.areaAt({0, 201}), SoftConNoArea);

    EXPECT_EQ(geometry.splitLine, QRectF(0, -300, 1, 500));
    EXPECT_EQ(geometry.inputArea, QRectF(-400, -300, 1000, 300));
    EXPECT_EQ(geometry.resultArea, QRectF(-400, 0, 1000, 200));
    EXPECT_EQ(geometry.titleBarTop, QRectF(-400, -300, 1000, 30));
    EXPECT_EQ(geometry.titleBarLeft, QRectF(-400, 0, 340, 31));
    EXPECT_EQ(geometry.titleBarRight, QRectF(60, 0, 540, 32));

    EXPECT_EQ(geometry.addButtons[SoftConInputArea], QPointF(573, -295));
    EXPECT_EQ(geometry.connectButton, QPointF(546, -295));
    EXPECT_EQ(geometry.docuButtons[SoftConInputArea], QPointF(519, -295));
    EXPECT_EQ(geometry.addButtons[SoftConExportArea], QPointF(-395, -295));
    EXPECT_EQ(geometry.docuButtons[SoftConExportArea], QPointF(-368, -295));
    EXPECT_EQ(geometry.addButtons[SoftConOutputArea], QPointF(573, 5));
    EXPECT_EQ(geometry.docuButtons[SoftConOutputArea], QPointF(546, 5));
    EXPECT_EQ(geometry.addButtons[SoftConImportArea], QPointF(-395, 5));
    EXPECT_EQ(geometry.scanButton, QPointF(-368, 5));
    EXPECT_EQ(geometry.docuButtons[SoftConImportArea], QPointF(-341, 5));

    EXPECT_EQ(geometry.labels[SoftConInputArea], QPointF(265, -292)) << "by the width of the result values' label";
    EXPECT_EQ(geometry.labels[SoftConExportArea], QPointF(-225, -292)) << "by that of the input files'";
    EXPECT_EQ(geometry.labels[SoftConOutputArea], QPointF(260, 8)) << "by that of the result files'";
    EXPECT_EQ(geometry.labels[SoftConImportArea], QPointF(-230, 8)) << "by that of the input geometry's";
}

}  // namespace
