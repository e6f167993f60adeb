#include "host/gui/base/FSvgDrawing.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace {

QColor inkOf(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    switch (mode) {
        case QIcon::Disabled:
            return palette.color(QPalette::Disabled, QPalette::WindowText);
        case QIcon::Selected:
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        case QIcon::Normal:
        case QIcon::Active:
            break;
    }
    return palette.color(QPalette::Active, QPalette::WindowText);
}

}  // namespace

FSvgDrawing::FSvgDrawing(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        mText = file.readAll();
    }
}

QSize FSvgDrawing::size() const {
    return isEmpty() ? QSize(0, 0) : QSvgRenderer(mText).defaultSize();
}

void FSvgDrawing::paint(QPainter& painter, const QRectF& rect, QIcon::Mode mode) const {
    if (isEmpty()) {
        return;
    }
    QByteArray text = mText;
    text.replace("currentColor", inkOf(mode).name().toLatin1());
    text.replace("Canvas", QGuiApplication::palette().color(QPalette::Base).name().toLatin1());
    const qreal opacity = painter.opacity();
    if (mode == QIcon::Disabled) {
        painter.setOpacity(opacity / 2);
    }
    QSvgRenderer(text).render(&painter, rect);
    painter.setOpacity(opacity);
}

QPixmap FSvgDrawing::pixmap(const QSize& size, double ratio) const {
    if (isEmpty()) {
        return {};
    }
    QPixmap pixmap((QSizeF(size) * ratio).toSize());
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(painter, QRectF(QPointF(), size));
    return pixmap;
}
