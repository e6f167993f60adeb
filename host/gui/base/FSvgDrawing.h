#pragma once

#include "host/core/FExport.h"

#include <QByteArray>
#include <QIcon>
#include <QPixmap>

/**
 * An SVG drawing in the colours of the present palette: what it fills or strokes with `currentColor` gets the colour of
 * texts, and with `Canvas` the one behind them.
 */
class MERIX_EXPORT FSvgDrawing {
 public:
    /** A file that can't be read gives an empty drawing. */
    explicit FSvgDrawing(const QString& path);

    bool isEmpty() const { return mText.isEmpty(); }
    /** As the drawing has it; 0 by 0 for an empty one. */
    QSize size() const;
    void paint(QPainter& painter, const QRectF& rect, QIcon::Mode mode = QIcon::Normal) const;
    /**
     * Null for an empty drawing.
     * @param ratio  device pixels for each one of the size
     */
    QPixmap pixmap(const QSize& size, double ratio) const;

 private:
    QByteArray mText;
};
