#pragma once

#include "genericintegration/connector/layout/FLayoutItem.h"

#include <QHash>
#include <QMap>
#include <QRect>

/** The layouts of all sizes, step by step with numbers in place of names: slow and simple. */
struct FLiteralLayout {
    enum Size { Large, Medium, Small };

    explicit FLiteralLayout(Size size);

    void calcItemRatios(const QList<FLayoutItem*>& items);
    QPointF arrangeItems(QRect view, double bar, double title);
    void calcSceneRect(const QRect& view, double bar, double title, int insetX, int insetY, QRectF& scene,
                       QRectF& area);

    bool isList;
    double sp, minW, minH, iw, ih;
    QRectF bounds;
    QMap<int, QList<FLayoutItem*>> lists;
    double left = 0, right = 0, top = 0, bottom = 0;
    QHash<int, double> rowWidths;
    double itemHeight = 0;
    bool isSecondPass = false;

 private:
    double areaMinWidth(int area) const { return std::max(220.0, rowWidths.value(area)) + 80; }
    int extra(int area, QSizeF size, double bar, int& rows, int& columns) const;
    void divide(const QRect& view, QSizeF* sizes) const;
    void place(FLayoutItem& item, int area, int row, int column, double title);
};
