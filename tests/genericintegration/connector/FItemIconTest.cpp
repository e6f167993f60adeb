#include "genericintegration/connector/FItemIcon.h"
#include "genericintegration/connector/layout/FSoftConLargeGridLayout.h"
#include "genericintegration/connector/layout/FSoftConListLayout.h"
#include "genericintegration/connector/layout/FSoftConMediumGridLayout.h"

#include <gtest/gtest.h>

#include <QColor>

namespace {

/** The pixels in which two pictures of the same size differ. */
QRect difference(const QImage& one, const QImage& other) {
    QRect rect;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y)) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

int darkPixels(const QImage& image, const QRect& rect) {
    int count = 0;
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            count += qGray(image.pixel(x, y)) < 100 ? 1 : 0;
        }
    }
    return count;
}

TEST(FItemIconTest, theTypeIsWrittenInTheMiddle) {
    const auto large = FSoftConLargeGridLayout().getIconTextMeasurements();
    const QString path = ":/softConFileName_Large";
    const auto icon = [&](const QString& name) { return FItemIcon::ofFile(path, {}, name, large, FItemIcon::dark); };
    const QImage plain = icon("name.");
    ASSERT_EQ(plain.size(), QImage(path).size());
    EXPECT_TRUE(difference(plain, QImage(path).convertToFormat(plain.format())).isNull()) << "no type, no text";

    const QRect text = difference(icon("a.dat"), plain);
    EXPECT_NEAR(text.left() + text.right(), plain.width(), 8) << "centred";
    EXPECT_GT(text.width(), plain.width() / 2);
    EXPECT_LE(text.bottom(), plain.height() / 2 + 1) << "stands on the middle";
    EXPECT_GT(text.height(), difference(icon("a.c"), plain).height())
        << "three letters are larger than any other number";
    EXPECT_EQ(icon("folder/a.dat\""), icon("b.dat"));
    EXPECT_NE(icon("a.dat"), FItemIcon::ofFile(path, {}, "a.dat", large, FItemIcon::light));
    EXPECT_TRUE(FItemIcon::ofFile(":/none", {}, "a.dat", large, FItemIcon::dark).isNull());
}

TEST(FItemIconTest, smallTypesAreOfOneColor) {
    const auto small = FSoftConListLayout().getIconTextMeasurements();
    const QString path = ":/softConFileName_Small";
    const QImage plain = FItemIcon::ofFile(path, {}, "a.", small, FItemIcon::dark);
    const QRect text = difference(FItemIcon::ofFile(path, {}, "a.dat", small, FItemIcon::dark), plain);
    EXPECT_FALSE(text.isNull());
    EXPECT_NEAR(text.left() + text.right(), plain.width(), 4);
}

TEST(FItemIconTest, aPictureInsteadOfAType) {
    const auto large = FSoftConLargeGridLayout().getIconTextMeasurements();
    const QString path = ":/softConExport_Large";
    const QImage plain = FItemIcon::ofFile(path, {}, "", large, FItemIcon::light);
    const QRect picture = difference(FItemIcon::ofFile(path, {}, ":/softConIcon", large, FItemIcon::light), plain);
    EXPECT_LE(picture.width(), plain.width() / 2);
    EXPECT_GT(picture.width(), plain.width() / 4);
    EXPECT_TRUE(QRect(plain.width() / 4, 0, plain.width() / 2, plain.height()).contains(picture));
    EXPECT_EQ(FItemIcon::ofFile(path, {}, ":/none", large, FItemIcon::light), plain);
}

TEST(FItemIconTest, picturesUseAllPixelsOfTheScreen) {
    const auto measurements = FSoftConMediumGridLayout().getIconTextMeasurements();
    const QString path = ":/softConImport_Medium";
    const auto icon = [&](const QSize& size, double ratio, const QString& name) {
        return FItemIcon::ofFile(path, {size, ratio}, name, measurements, FItemIcon::light);
    };
    const QImage fine = icon({75, 106}, 2, "");
    EXPECT_EQ(fine.devicePixelRatio(), 2);
    EXPECT_TRUE(difference(fine, icon({150, 212}, 1, "")).isNull()) << "no scaled picture";
    const QRect type = difference(icon({75, 106}, 2, "a.dat"), fine);
    EXPECT_NEAR(type.left() + type.right(), fine.width(), 8);

    const QColor ground(230, 230, 230);
    const QImage page = FItemIcon::ofText("first line", {QSize(75, 106), 2}, ground);
    EXPECT_EQ(page.size(), QSize(150, 212));
    EXPECT_EQ(QColor(page.pixel(2, 106)), QColor("#ae0000")) << "the outline is as thick";
    EXPECT_GT(darkPixels(page, QRect(20, 20, 100, 32)), 40);
}

TEST(FItemIconTest, aPageShowsTheBeginningOfAText) {
    const QColor ground(230, 230, 230);
    const QImage empty = FItemIcon::ofText("", {QSize(75, 106)}, ground);
    ASSERT_EQ(empty.size(), QSize(75, 106));
    EXPECT_EQ(QColor(empty.pixel(37, 53)), QColor(Qt::white));
    EXPECT_EQ(QColor(empty.pixel(0, 0)), ground) << "outside of the page";
    EXPECT_EQ(QColor(empty.pixel(1, 53)), QColor("#ae0000")) << "the outline";
    EXPECT_EQ(QColor(empty.pixel(69, 4)), QColor("#ae0000")) << "the fold";
    EXPECT_NE(QColor(empty.pixel(71, 2)), QColor("#ae0000")) << "the corner is cut off";

    const QImage text = FItemIcon::ofText("first line\r\nsecond line", {QSize(75, 106)}, ground);
    EXPECT_GT(darkPixels(text, QRect(10, 10, 50, 16)), 20);
    EXPECT_EQ(darkPixels(text, QRect(10, 40, 50, 50)), 0);

    const QString line = QString(60, 'x') + '\n';
    EXPECT_EQ(FItemIcon::ofText(line.repeated(10000), {QSize(150, 212)}, ground),
              FItemIcon::ofText(line.repeated(100), {QSize(150, 212)}, ground))
        << "what doesn't fit on the page is left out";
}

}  // namespace
