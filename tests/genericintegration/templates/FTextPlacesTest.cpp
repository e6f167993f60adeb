#include "genericintegration/templates/FTextPlaces.h"

#include <gtest/gtest.h>

#include <QString>

namespace {

TEST(FTextPlacesTest, countsFromOneInAnyOrder) {
    const QString text = "ab\r\n\nc";
    FTextPlaces places(text);
    EXPECT_EQ(places.at(0), (FTextPlace{1, 1}));
    EXPECT_EQ(places.at(3), (FTextPlace{1, 4}));
    EXPECT_EQ(places.at(5), (FTextPlace{3, 1}));
    EXPECT_EQ(places.at(6), (FTextPlace{3, 2}));
    EXPECT_EQ(places.at(4), (FTextPlace{2, 1}));
    EXPECT_EQ(FTextPlaces(QStringView()).at(0), (FTextPlace{1, 1}));
}

TEST(FTextPlacesTest, countsMoreLinesThanABlockHolds) {
    const QString text = QString(200'000, '\n') + "x";
    EXPECT_EQ(FTextPlaces(text).at(text.size()), (FTextPlace{200'001, 2}));
}

}  // namespace
