#include "host/gui/base/FFixedFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

QFont FFixedFont::get() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(QGuiApplication::font().pointSizeF());
    // Without a desktop, there may be no such setting.
    if (!QFontInfo(font).fixedPitch()) {
        font.setFamily(QStringLiteral("monospace"));
        font.setStyleHint(QFont::TypeWriter);
    }
    return font;
}
