#pragma once

#include <QString>

#include <functional>

/** How the font of the labels measures a text. Layouts don't know fonts. */
struct FLabelMetrics {
    std::function<double(const QString& text)> width;
    std::function<QString(const QString& text, int width)> elideMiddle;
    int height = 0;
};
