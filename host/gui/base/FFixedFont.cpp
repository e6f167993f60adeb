#include "host/gui/base/FFixedFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

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

// Asked of the database, since a font system takes something else that is meant to look similar.
QFont FFixedFont::named(const QString& family, qreal points) {
    QFont font = get();
    if (QFontDatabase().hasFamily(family)) {
        font = QFont(family);
        font.setStyleHint(QFont::TypeWriter);
    }
    font.setPointSizeF(std::max(points, QGuiApplication::font().pointSizeF()));
    return font;
}
