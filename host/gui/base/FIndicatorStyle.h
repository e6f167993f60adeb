#pragma once

#include "host/core/FExport.h"

#include <QProxyStyle>

/** The style of the program, with outlines of check boxes and radio buttons that can be seen in a dark palette. */
class MERIX_EXPORT FIndicatorStyle : public QProxyStyle {
 public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};
