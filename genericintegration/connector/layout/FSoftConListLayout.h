#pragma once

#include "genericintegration/connector/layout/FSoftConLayout.h"

#include <QHash>

/** A row of text for each item, in columns. The rows of the upper areas grow upward, in alphabetical order downward. */
class FSoftConListLayout : public FSoftConLayout {
 public:
    /** Also gives the frames of an area the width of its rows. */
    void calcItemRatios(const QList<FLayoutItem*>& items) override;
    QPointF arrangeItems(const QRect& view, double barHeight, double titleBarHeight) override;
    void setupItem(FLayoutItem& item, const QString& name, const FLabelMetrics& metrics, bool noFrame) const override;
    void itemChanged(FLayoutScene& scene) const override;

    double getMinAreaWidth() const override { return 220; }
    double getMinAreaHeight() const override { return 240; }
    double getItemSpacing() const override { return 5; }
    double getFrameLeft() const override { return 10; }
    double getFrameTop() const override { return 5; }
    double getFrameRight() const override { return 30; }
    double getFrameBottom() const override { return 5; }
    FSoftConLayoutIconTextMeasurements getIconTextMeasurements() const override { return {7, 5, {}, {}, false}; }
    QString getSizeName() const override { return QStringLiteral("Small"); }
    virtual double getAreaMinWidth(int area) const;

 protected:
    QHash<int, double> mAreaItemWidths;  //!< of a row
    double mItemHeight = 0;
    double mTextGap = 10;

 private:
    /** Sets the width of the area's rows; gives the room that the area needs. */
    QSizeF measureRows(int area);
};
