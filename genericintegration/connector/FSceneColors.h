#pragma once

#include <QColor>

/** Colours of a connector's scene that no role of the palette stands for, for a light and for a dark palette. */
namespace FSceneColors {

/** Behind a page, its caption and its button. */
QColor frame();
QColor frameLine();
/** A text on a frame. */
QColor caption();
/** Behind the labels and buttons of an area. */
QColor titleBar();

}  // namespace FSceneColors
