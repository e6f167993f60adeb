#pragma once

#include "genericintegration/connector/layout/FSoftConLayout.h"

/** Icons in rows and columns, each with its label below. */
class FSoftConGridLayout : public FSoftConLayout {
 public:
    QPointF arrangeItems(const QRect& view, double barHeight, double titleBarHeight) override;
    void setupItem(FLayoutItem& item, const QString& name, const FLabelMetrics& metrics, bool noFrame) const override;

    /** The proportions of a sheet of paper. */
    int getIconHeight() const override;
    double getItemSpacing() const override { return 30; }
    double getFrameLeft() const override { return 10; }
    double getFrameTop() const override { return 10; }
    double getFrameRight() const override { return 30; }
    double getFrameBottom() const override { return 30; }
};
