#include "genericintegration/connector/FItemIcon.h"

#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FSoftConLayoutIconTextMeasurements.h"

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

void paintOutlined(QPainter& painter, const QImage& image, const QString& text,
                   const FSoftConLayoutIconTextMeasurements& measurements, const FItemIcon::Colors& colors) {
    const QFont font = typeFont(text, measurements);
    QPainterPath measured;
    measured.addText(0, 0, font, text);
    QPainterPath path;
    path.addText((image.width() - measured.boundingRect().width()) * 0.5, image.height() / 2.0, font, text);
    QLinearGradient gradient(measurements.gradientStart, measurements.gradientStop);
    gradient.setColorAt(0, QColor(colors.gradientStart));
    gradient.setColorAt(1, QColor(colors.gradientEnd));
    painter.setPen(QColor(colors.outline));
    painter.setBrush(gradient);
    painter.setOpacity(0.5);
    painter.drawPath(path);
}

void paintType(QImage& image, const QString& text, const FSoftConLayoutIconTextMeasurements& measurements,
               const FItemIcon::Colors& colors) {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    if (measurements.outlined) {
        paintOutlined(painter, image, text, measurements, colors);
        return;
    }
    painter.setPen(QColor(colors.text));
    painter.setFont(typeFont(text, measurements));
    painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextSingleLine, text);
}

void paintPicture(QImage& image, const QString& path) {
    const QImage picture(path);
    if (picture.isNull()) {
        return;
    }
    const QImage scaled = picture.scaledToWidth(image.width() / 2, Qt::SmoothTransformation);
    QPainter painter(&image);
    painter.drawImage((image.width() - scaled.width()) / 2, (image.height() - scaled.height()) / 2, scaled);
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

QImage FItemIcon::ofFile(const QString& path, const QString& name,
                         const FSoftConLayoutIconTextMeasurements& measurements, const Colors& colors) {
    QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QString type = FItemCaption::typeText(name);
    if (image.isNull()) {
        return image;
    }
    if (name.startsWith(QLatin1String(":/"))) {
        paintPicture(image, name);
    } else if (!type.isEmpty()) {
        paintType(image, type, measurements, colors);
    }
    return image;
}

QImage FItemIcon::ofText(const QString& text, const QSize& size, const QColor& ground) {
    QImage large(2 * size, QImage::Format_ARGB32_Premultiplied);
    large.fill(ground);
    QPainter painter(&large);
    painter.fillPath(FPage(large.width() - 2, large.height() - 2).outline, Qt::white);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.drawText(QRect(20, 20, large.width() - 40, large.height() - 40), Qt::AlignLeft | Qt::AlignTop,
                     beginning(text));
    painter.end();

    QImage image = large.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
    const FPage page(size.width(), size.height());
    painter.begin(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(templateColor), 2));
    painter.drawPath(page.outline);
    painter.fillPath(page.fold(), QColor(templateColor));
    return image;
}
