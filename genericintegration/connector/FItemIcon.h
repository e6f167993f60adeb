#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <QString>

struct FSoftConLayoutIconTextMeasurements;

/** The pictures of a connector's items. */
namespace FItemIcon {

/** Names of colours. */
struct Colors {
    const char* outline;
    const char* text;
    const char* gradientStart;
    const char* gradientEnd;
};

/** For result files and exports. */
constexpr Colors light{"#f3f3f3", "#fafafa", "#e3e3e3", "#727070"};
/** For input files. */
constexpr Colors dark{"#a2a2a2", "#777777", "#e3e3e3", "#727070"};

/** How large a picture is. */
struct Extent {
    QSize size{};      //!< empty for that of the drawing
    double ratio = 1;  //!< device pixels for each one of the size
};

/**
 * A picture with the type of a file written on it.
 * @param path  of the drawing; null if it can't be loaded
 * @param name  of the file; or the path of a drawing in the resources, which is painted in the middle instead
 */
QImage ofFile(const QString& path, const Extent& extent, const QString& name,
              const FSoftConLayoutIconTextMeasurements& measurements, const Colors& colors);

/**
 * A page with a folded corner that shows the beginning of a text. Its cost doesn't depend on the text's length.
 * @param extent  its size isn't empty
 * @param ground  what is behind the page
 */
QImage ofText(const QString& text, const Extent& extent, const QColor& ground);

}  // namespace FItemIcon
