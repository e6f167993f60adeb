#include "genericintegration/templates/FTextPlaces.h"

#include <gtest/gtest.h>

#include <QString>

namespace {

TEST(FTextPlacesTest, countsMoreLinesThanABlockHolds) {
    const QString text = QString(200'000, '\n') + "x";
    FTextPlaces places(text);
    EXPECT_EQ(places.at(text.size()), (FTextPlace{200'001, 2}));
    EXPECT_EQ(places.at(3), (FTextPlace{4, 1})) << "in any order";
}

}  // namespace
