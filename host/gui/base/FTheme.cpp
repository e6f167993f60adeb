#include "host/gui/base/FTheme.h"

#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FIndicatorStyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QToolTip>

#include <utility>

namespace {

const std::pair<FTheme::Appearance, const char*> names[] = {
    {FTheme::Appearance::Desktop, "desktop"},
    {FTheme::Appearance::Light, "light"},
    {FTheme::Appearance::Dark, "dark"},
};

/** A palette as Qt's Fusion style lays it out. */
QPalette makePalette(const QColor& window, const QColor& base, const QColor& text, const QColor& highlight,
                     const QColor& link) {
    QPalette palette(window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, link);
    QColor grey = text;
    grey.setAlpha(170);
    palette.setColor(QPalette::PlaceholderText, grey);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QColor pale = text;
        pale.setAlpha(110);
        palette.setColor(QPalette::Disabled, role, pale);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, window.lighter(120));
    return palette;
}

QPalette darkPalette() {
    return makePalette(QColor(0x2a, 0x2e, 0x32), QColor(0x1d, 0x20, 0x23), QColor(0xf2, 0xf3, 0xf4),
                       QColor(0x2b, 0x73, 0xa8), QColor(0x7a, 0xc0, 0xf0));
}

}  // namespace

QPalette FTheme::lightPalette() {
    return makePalette(QColor(0xef, 0xf0, 0xf1), QColor(0xff, 0xff, 0xff), QColor(0x1f, 0x22, 0x25),
                       QColor(0x2b, 0x73, 0xa8), QColor(0x1a, 0x62, 0x9e));
}

FTheme::Appearance FTheme::getChosen() {
    const QString chosen = FGuiSettings::getAppearance();
    for (const auto& [appearance, name] : names) {
        if (chosen == QLatin1String(name)) {
            return appearance;
        }
    }
    return Appearance::Desktop;
}

void FTheme::choose(Appearance appearance) {
    for (const auto& [known, name] : names) {
        if (known == appearance) {
            FGuiSettings::setAppearance(QString::fromLatin1(name));
        }
    }
    apply(appearance);
}

void FTheme::install() {
    QApplication::setStyle(new FIndicatorStyle(QApplication::style()->objectName()));
    apply(getChosen());
}

void FTheme::apply(Appearance appearance) {
    static const QPalette desktop = QApplication::palette();
    const QPalette palette = appearance == Appearance::Desktop ? desktop
                             : appearance == Appearance::Light ? lightPalette()
                                                               : darkPalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    FIcons::followPalette();
}
