#pragma once

#include <QProxyStyle>

/** The style of the program with wider margins of cells and headers, so that neighbours of both alignments don't touch.
 */
class FRoomyStyle : public QProxyStyle {
 public:
    /** Gives it to a widget, which owns it. */
    static void applyTo(QWidget& widget);

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};
