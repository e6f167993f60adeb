#pragma once

#include <QByteArray>
#include <QIconEngine>

/**
 * Draws an SVG file at any size, crisp on each screen, in the colours of the present palette: what the drawing fills or
 * strokes with `currentColor` gets that of texts.
 */
class FSvgIconEngine : public QIconEngine {
 public:
    explicit FSvgIconEngine(const QString& path);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override { return new FSvgIconEngine(*this); }

 private:
    QByteArray mDrawing;
};
