#include "host/gui/text/FTextColor.h"

#include "host/gui/base/FStateColor.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <array>

namespace {

struct Row {
    QRgb light;
    QRgb dark;
};

constexpr std::array<Row, 5> foregrounds{{
    {0xff0000ff, 0xff8ab4f8},  // blue: tags
    {0xff008000, 0xff81c995},  // dark green: names of entries
    {0xff800000, 0xffff8a80},  // dark red: wrong tags, unknown names
    {0xffff0000, 0xffff8a80},  // red: text after a wrong tag
    {0xffffffff, 0xffffffff},  // white: on the column of a value
}};

constexpr std::array<Row, 4> backgrounds{{
    {0xffcff6cf, 0xff24402b},  // light green: possible values, lines of values
    {0xffa8f7f7, 0xff134e4e},  // light blue: anchors
    {0xff9a0033, 0xff9a0033},  // dark red: the column of a value
    {0xffffff00, 0xff6b5d00},  // yellow: what a search finds
}};

template <std::size_t n>
QColor shown(const std::array<Row, n>& rows, const QColor& color, Qt::GlobalColor plain, QPalette::ColorRole role) {
    if (!FStateColor::isDark()) {
        return color;
    }
    if (color == QColor(plain)) {
        return QGuiApplication::palette().color(role);
    }
    const auto row =
        std::find_if(rows.begin(), rows.end(), [&](const Row& candidate) { return candidate.light == color.rgba(); });
    return row == rows.end() ? color : QColor::fromRgba(row->dark);
}

}  // namespace

QColor FTextColor::foreground(const QColor& color) {
    return shown(foregrounds, color, Qt::black, QPalette::Text);
}

QColor FTextColor::background(const QColor& color) {
    return shown(backgrounds, color, Qt::white, QPalette::Base);
}
