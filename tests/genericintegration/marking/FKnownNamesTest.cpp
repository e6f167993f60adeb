#include "genericintegration/marking/FKnownNames.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "host/design/FEntryDef.h"
#include "tests/genericintegration/setup/FIntegrationTest.h"

namespace {

using FKnownNamesTest = FIntegrationTest;

TEST_F(FKnownNamesTest, namesFollowTheDefinition) {
    auto* definition = object<FDefinitionGenInt>("def");
    ASSERT_TRUE(definition);
    FKnownNames names;
    EXPECT_TRUE(names.update(*definition));
    EXPECT_FALSE(names.update(*definition));
    EXPECT_TRUE(names.get().contains(u"X"));
    const QString input = definition->getCommandFiles().first()->getFileName();
    const QString output = definition->getResultsFiles().first()->getFileName();
    EXPECT_TRUE(names.get().contains("Exports|" + input));
    EXPECT_FALSE(names.get().contains("Exports|" + output));

    definition->getCommandFiles().first()->setFileName("Other.in");
    EXPECT_TRUE(names.update(*definition));
    EXPECT_TRUE(names.get().contains(u"exports|other.in"));
    EXPECT_FALSE(names.get().contains("Exports|" + input));
    dynamic_cast<FEntryDef*>(definition->getEntryOfScope("x"))->setName("y");
    EXPECT_TRUE(names.update(*definition));
    EXPECT_TRUE(names.get().contains(u"y"));
    EXPECT_FALSE(names.get().contains(u"x"));
}

}  // namespace
