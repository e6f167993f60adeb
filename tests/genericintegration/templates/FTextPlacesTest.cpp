#include "genericintegration/templates/FTextPlaces.h"

#include <gtest/gtest.h>

#include <QString>

namespace {

TEST(FTextPlacesTest, countsMoreLinesThanABlockHolds) {
    const QString text = QString(200'000, '\n') + "x";
    EXPECT_EQ(FTextPlaces(text).at(text.size()), (FTextPlace{200'001, 2}));
}

}  // namespace
