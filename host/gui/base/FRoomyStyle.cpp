#include "host/gui/base/FRoomyStyle.h"

#include <QWidget>

void FRoomyStyle::applyTo(QWidget& widget) {
    auto* style = new FRoomyStyle;
    style->setParent(&widget);
    widget.setStyle(style);
}

int FRoomyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool isMargin = metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin;
    return isMargin && widget ? qMax(usual, widget->fontMetrics().averageCharWidth()) : usual;
}
