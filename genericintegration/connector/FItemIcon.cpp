#include "genericintegration/connector/FItemIcon.h"

#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FSoftConLayoutIconTextMeasurements.h"
#include "host/gui/base/FSvgDrawing.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>

namespace {

// More than any page shows.
constexpr int mostLines = 80;
constexpr int mostColumns = 200;

const char* const templateColor = "#ae0000";

QFont typeFont(const QString& text, const FSoftConLayoutIconTextMeasurements& measurements) {
    QFont font(QStringLiteral("arial"),
               text.size() == 3 ? measurements.fontSizeThreeLetters : measurements.fontSizeOther, QFont::Bold);
    font.setStyleHint(QFont::Helvetica, QFont::PreferDefault);
    font.setStretch(112);
    return font;
}

QImage blank(const QSize& size, double ratio) {
    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    return image;
}

void paintOutlined(QPainter& painter, const QSize& size, const QString& text,
                   const FSoftConLayoutIconTextMeasurements& measurements, const FItemIcon::Colors& colors) {
    const QFont font = typeFont(text, measurements);
    QPainterPath measured;
    measured.addText(0, 0, font, text);
    QPainterPath path;
    path.addText((size.width() - measured.boundingRect().width()) * 0.5, size.height() / 2.0, font, text);
    QLinearGradient gradient(measurements.gradientStart, measurements.gradientStop);
    gradient.setColorAt(0, QColor(colors.gradientStart));
    gradient.setColorAt(1, QColor(colors.gradientEnd));
    painter.setPen(QColor(colors.outline));
    painter.setBrush(gradient);
    painter.setOpacity(0.5);
    painter.drawPath(path);
}

void paintType(QPainter& painter, const QSize& size, const QString& text,
               const FSoftConLayoutIconTextMeasurements& measurements, const FItemIcon::Colors& colors) {
    painter.setRenderHint(QPainter::TextAntialiasing);
    if (measurements.outlined) {
        paintOutlined(painter, size, text, measurements, colors);
        return;
    }
    painter.setPen(QColor(colors.text));
    painter.setFont(typeFont(text, measurements));
    painter.drawText(QRect(QPoint(), size), Qt::AlignCenter | Qt::TextSingleLine, text);
}

void paintPicture(QPainter& painter, const QSize& size, const FSvgDrawing& picture) {
    if (!picture.isEmpty()) {
        const int width = size.width() / 2;
        const int height = width * picture.size().height() / picture.size().width();
        picture.paint(painter, QRect((size.width() - width) / 2, (size.height() - height) / 2, width, height));
    }
}

/** A page with round corners, and a line across the upper right one. */
struct FPage {
    FPage(double width, double height)
        : radius(width * 0.04 + 2), right(width - 2), bottom(height - 2), outline(makeOutline()) {}

    double radius;
    double right;
    double bottom;
    QPainterPath outline;

    QPainterPath fold() const {
        QPainterPath fold;
        fold.addPolygon(
            QPolygonF({QPointF(right - radius, 1), QPointF(right - radius, radius), QPointF(right, radius)}));
        fold.closeSubpath();
        return fold;
    }

 private:
    QPainterPath makeOutline() const {
        const double diameter = 2 * radius;
        QPainterPath path(QPointF(radius, 1));
        path.arcTo(1, 1, diameter, diameter, 90, 90);
        path.lineTo(1, bottom - radius);
        path.arcTo(1, bottom - diameter, diameter, diameter, 180, 90);
        path.lineTo(right - radius, bottom);
        path.arcTo(right - diameter, bottom - diameter, diameter, diameter, 270, 90);
        path.lineTo(right, radius);
        path.lineTo(right - radius, 1);
        path.closeSubpath();
        return path;
    }
};

QString beginning(const QString& text) {
    QString result;
    int from = 0;
    for (int line = 0; line < mostLines && from < text.size(); ++line) {
        const int feed = text.indexOf(u'\n', from);
        const int end = feed < 0 ? text.size() : feed;
        result += text.midRef(from, std::min(end - from, mostColumns));
        result += u'\n';
        from = end + 1;
    }
    return result.remove(u'\r');
}

}  // namespace

QImage FItemIcon::ofFile(const QString& path, const Extent& extent, const QString& name,
                         const FSoftConLayoutIconTextMeasurements& measurements, const Colors& colors) {
    const FSvgDrawing drawing(path);
    if (drawing.isEmpty()) {
        return {};
    }
    const QSize size = extent.size.isEmpty() ? drawing.size() : extent.size;
    QImage image = blank(size, extent.ratio);
    QPainter painter(&image);
    drawing.paint(painter, QRect(QPoint(), size));
    const QString type = FItemCaption::typeText(name);
    if (name.startsWith(QLatin1String(":/"))) {
        paintPicture(painter, size, FSvgDrawing(name));
    } else if (!type.isEmpty()) {
        paintType(painter, size, type, measurements, colors);
    }
    return image;
}

QImage FItemIcon::ofText(const QString& text, const Extent& extent, const QColor& ground) {
    const QSize size = 2 * extent.size;
    QImage large = blank(size, extent.ratio);
    large.fill(ground);
    QPainter painter(&large);
    painter.fillPath(FPage(size.width() - 2, size.height() - 2).outline, Qt::white);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(Qt::black);
    painter.drawText(QRect(20, 20, size.width() - 40, size.height() - 40), Qt::AlignLeft | Qt::AlignTop,
                     beginning(text));
    painter.end();

    const auto way = extent.ratio > 1 ? Qt::SmoothTransformation : Qt::FastTransformation;
    QImage image = large.scaled((QSizeF(extent.size) * extent.ratio).toSize(), Qt::KeepAspectRatio, way);
    image.setDevicePixelRatio(extent.ratio);
    const FPage page(extent.size.width(), extent.size.height());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(templateColor), 2));
    painter.drawPath(page.outline);
    painter.fillPath(page.fold(), QColor(templateColor));
    return image;
}
