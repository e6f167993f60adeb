#include "genericintegration/templates/FTemplateTags.h"

#include <gtest/gtest.h>

#include <QChar>

using namespace FTemplateTags;

namespace {

// The scanner relies on it: no letter but the Latin ones answers to a letter of a marker.
TEST(FTemplateTagsTest, markersHaveNoForeignLetters) {
    for (uint unit = 128; unit <= 0xffff; ++unit) {
        for (const QChar letter : openingMarker) {
            ASSERT_NE(QString(QChar(unit)).compare(QString(letter), Qt::CaseInsensitive), 0) << unit;
        }
    }
}

}  // namespace
