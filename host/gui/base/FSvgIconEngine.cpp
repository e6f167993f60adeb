#include "host/gui/base/FSvgIconEngine.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
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

FSvgIconEngine::FSvgIconEngine(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        mDrawing = file.readAll();
    }
}

void FSvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) {
    Q_UNUSED(state)
    QByteArray drawing = mDrawing;
    QSvgRenderer renderer(drawing.replace("currentColor", inkOf(mode).name().toLatin1()));
    const qreal opacity = painter->opacity();
    if (mode == QIcon::Disabled) {
        painter->setOpacity(opacity / 2);
    }
    renderer.render(painter, rect);
    painter->setOpacity(opacity);
}

QPixmap FSvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}
