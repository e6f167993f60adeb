#pragma once

/** The parts of a connector's scene. The computation is at the origin, where the four areas meet. */
enum SoftConArea {
    SoftConInputArea = 0,   //!< input files, top right
    SoftConExportArea = 1,  //!< input geometry, top left
    SoftConOutputArea = 2,  //!< result values, bottom right
    SoftConImportArea = 3,  //!< result files, bottom left
    SoftConComputationArea = 4,
    SoftConNoArea = 5,
};

/** The areas that layouts fill with items: the first ones. */
constexpr int filledAreas = 4;

constexpr bool isLeftArea(int area) {
    return area == SoftConExportArea || area == SoftConImportArea;
}
constexpr bool isUpperArea(int area) {
    return area == SoftConInputArea || area == SoftConExportArea;
}
