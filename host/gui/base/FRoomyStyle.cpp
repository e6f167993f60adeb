#include "host/gui/base/FRoomyStyle.h"

#include <QStyleOptionHeader>
#include <QWidget>

void FRoomyStyle::applyTo(QWidget& widget) {
    auto* style = new FRoomyStyle;
    style->setParent(&widget);
    widget.setStyle(style);
}

int FRoomyStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    const int usual = FIndicatorStyle::pixelMetric(metric, option, widget);
    const bool isMargin = metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin;
    return isMargin && widget ? qMax(usual, widget->fontMetrics().averageCharWidth()) : usual;
}

int FRoomyStyle::addedMargin(const QStyleOption* option, const QWidget* widget) const {
    return pixelMetric(PM_HeaderMargin, option, widget) - FIndicatorStyle::pixelMetric(PM_HeaderMargin, option, widget);
}

// The height of a header stays.
QSize FRoomyStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                    const QWidget* widget) const {
    QSize whole = FIndicatorStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_HeaderSection) {
        whole.rheight() -= 2 * addedMargin(option, widget);
    }
    return whole;
}

void FRoomyStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* label = element == CE_HeaderLabel ? qstyleoption_cast<const QStyleOptionHeader*>(option) : nullptr;
    if (!label) {
        FIndicatorStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionHeader whole = *label;
    const int added = addedMargin(option, widget);
    whole.rect.adjust(0, -added, 0, added);
    FIndicatorStyle::drawControl(element, &whole, painter, widget);
}
