#include "host/gui/base/FStateColor.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

bool isDarkPalette(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

}  // namespace

bool FStateColor::isDark() {
    return isDarkPalette(QGuiApplication::palette());
}

QColor FStateColor::of(State state) {
    return of(state, QGuiApplication::palette());
}

QColor FStateColor::of(State state, const QPalette& palette) {
    const bool dark = isDarkPalette(palette);
    switch (state) {
        case State::Good:
            return dark ? QColor(0x6c, 0xc1, 0x7c) : QColor(0x1a, 0x70, 0x33);
        case State::Warning:
            return dark ? QColor(0xe5, 0xa9, 0x3d) : QColor(0x8a, 0x52, 0x00);
        case State::Bad:
            return dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x26, 0x1e);
        case State::Secondary:
            break;
    }
    return dark ? QColor(0xa5, 0xa9, 0xad) : QColor(0x5f, 0x63, 0x68);
}

QColor FStateColor::backgroundOf(State state) {
    const bool dark = isDark();
    switch (state) {
        case State::Good:
            return dark ? QColor(0x24, 0x40, 0x2b) : QColor(0xd5, 0xec, 0xd9);
        case State::Warning:
            return dark ? QColor(0x4d, 0x3e, 0x17) : QColor(0xff, 0xf1, 0xcc);
        case State::Bad:
            return dark ? QColor(0x54, 0x2a, 0x28) : QColor(0xfb, 0xdc, 0xda);
        case State::Secondary:
            break;
    }
    return QGuiApplication::palette().color(QPalette::AlternateBase);
}
