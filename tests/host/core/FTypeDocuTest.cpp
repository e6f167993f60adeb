#include "tests/host/core/FThing.h"
#include "tests/support/FModelTest.h"

namespace {

class FTypeDocuTest : public FModelTest {};

TEST_F(FTypeDocuTest, theDescriptionOfAClassEndsWithItsHelp) {
    const FObject* thing = FThing::null();
    const QString description = thing->getDocuString(1);
    thing->addDocu("<b>Input", 5);
    thing->addDocu("</b>", 5);
    EXPECT_EQ(thing->getDocuString(5), "<b>Input</b>");
    EXPECT_EQ(thing->getDocuString(1), description + "<b>Input</b>");
    EXPECT_FALSE(FManaged::null()->getDocuString(1).contains("Input"));
}

}  // namespace
