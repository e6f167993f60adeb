#include "host/gui/base/FIndicatorStyle.h"

#include "host/gui/base/FStateColor.h"

#include <QStyleOptionButton>

// Qt's Fusion style draws the outline in a darker shade of the window, or with the focus of the highlight, also where
// the window is dark already. A darker shade of the text can be seen on it. Items of lists and menus draw theirs by the
// same elements.
void FIndicatorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                    const QWidget* widget) const {
    const bool isIndicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const auto* button = isIndicator ? qstyleoption_cast<const QStyleOptionButton*>(option) : nullptr;
    if (!button || !FStateColor::isDark()) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    QStyleOptionButton outlined = *button;
    constexpr int lighter = 200;  // percent
    outlined.palette.setColor(QPalette::Window, button->palette.color(QPalette::WindowText));
    outlined.palette.setColor(QPalette::Highlight, button->palette.color(QPalette::Highlight).lighter(lighter));
    QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
}
