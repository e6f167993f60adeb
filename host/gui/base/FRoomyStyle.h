#pragma once

#include "host/gui/base/FIndicatorStyle.h"

/** The style of the program with wider margins of cells and headers, so that neighbours of both alignments don't touch.
 */
class FRoomyStyle : public FIndicatorStyle {
 public:
    /** Gives it to a widget, which owns it. */
    static void applyTo(QWidget& widget);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

 private:
    int addedMargin(const QStyleOption* option, const QWidget* widget) const;
};
