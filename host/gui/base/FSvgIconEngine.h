#pragma once

#include "host/gui/base/FSvgDrawing.h"

#include <QIconEngine>

/** Shows an SVG drawing as an icon, at any size, crisp on each screen. */
class FSvgIconEngine : public QIconEngine {
 public:
    explicit FSvgIconEngine(const QString& path) : mDrawing(path) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine* clone() const override { return new FSvgIconEngine(*this); }

 private:
    FSvgDrawing mDrawing;
};
