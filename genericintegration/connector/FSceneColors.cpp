#include "genericintegration/connector/FSceneColors.h"

#include "host/gui/base/FStateColor.h"

QColor FSceneColors::frame() {
    return FStateColor::isDark() ? QColor(0x3a, 0x3f, 0x45) : QColor(230, 230, 230);
}

QColor FSceneColors::frameLine() {
    return FStateColor::isDark() ? QColor(0x5a, 0x61, 0x68) : QColor(Qt::lightGray);
}

QColor FSceneColors::caption() {
    return FStateColor::isDark() ? QColor(0xf2, 0xf3, 0xf4) : QColor(Qt::black);
}

QColor FSceneColors::titleBar() {
    return FStateColor::isDark() ? QColor(0x3a, 0x3f, 0x45) : QColor(0xde, 0xe0, 0xe2);
}
