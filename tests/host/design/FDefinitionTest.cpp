#include "host/design/FEntryDef.h"
#include "tests/host/design/FEntryFixture.h"

#include "host/core/FMerixCtrl.h"

namespace {

class FDefinitionTest : public FEntryFixture {};

TEST_F(FDefinitionTest, whatCannotBeAddedIsRefusedWithItsPlaceAndChangesNothing) {
    const QString before = savedModel();
    const QList<QStringList> refused{
        {"\"a[0]\", 1", "can't be the name of an entry"},
        {"\"a||b\", 1", "isn't empty"},
        {"\"\", 1", "isn't empty"},
        {"\"a\nb\", 1", "no line end"},
        {"\"height\", 1", "has an entry \"height\" already"},
        {"\"Geometry\", 1", "has an entry \"Geometry\" already"},
        {"\"height|x\", 1", "\"height\" holds a value"},
        {"\"x\", def", "can't be a default"},
        {"\"x\", 1, 0", "occurs at least once"},
        {"\"x\", 1, 20000", "at most 10000 times"},
        {"\"x\", 1, 2, 3", "not less than its least count"},
        {"\"x\", NULL, 1, 1, false, \"\", \"FNone\"", "no class \"FNone\""},
        {'"' + QString("g|").repeated(1'000'000) + "g\", 1", "more than 50 levels"},
    };
    for (const QStringList& attempt : refused) {
        ASSERT_TRUE(run("r = def.addEntry(" + attempt[0] + ")\nif (r != NULL) { exit(1) }"));
        EXPECT_TRUE(logHolds(attempt[1])) << attempt[0].toStdString() << "\n" << logText();
        EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    }
    EXPECT_TRUE(log().front().startsWith("warning: test:1:9: ")) << log().front().toStdString();
    run("def.removeEntry(\"heigth\")\ndef.renameEntry(\"Geometry|spam\", \"x\")\ndef.renameEntry(\"height\", \"a|b\")\n"
        "def.renameEntry(\"height\", \"Geometry\")");
    EXPECT_TRUE(logHolds("def has no entry \"heigth\" (did you mean \"height\"?)"));
    EXPECT_TRUE(logHolds("(did you mean \"Geometry|span\"?)"));
    EXPECT_TRUE(logHolds("\"a|b\" can't be the name of an entry"));
    EXPECT_TRUE(logHolds("def has an entry \"Geometry\" already"));
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
}

TEST_F(FDefinitionTest, aRenamedEntryTakesValuesAndTagsAlong) {
    run("def.addEntry(\"Geometry|Wing|chord\", 3)\nconf.setEntryValue(\"Geometry|span\", 12)\n"
        "parameter p(conf.getEntryValue(\"Geometry|span\"))");
    run("def.renameEntry(\"Geometry\", \"G\")");
    EXPECT_EQ(definition().mRenames, (QStringList{"Geometry|span -> G|span", "Geometry|Wing|chord -> G|Wing|chord"}));
    EXPECT_EQ(paths(), (QStringList{"G|Wing|chord", "G|span", "height"}));
    EXPECT_EQ(values(), (QStringList{"3", "12", "40"}));
    definition().mRenames.clear();
    auto* height = dynamic_cast<FEntryDef*>(definition().getEntryOfScope("height"));
    height->setName("G");  // from C++ a name is made free and legal
    EXPECT_EQ(height->getName(), "G_01");
    height->setName("G_01");
    height->setName("a[|]b");
    EXPECT_EQ(definition().mRenames, (QStringList{"height -> G_01", "G_01 -> a___b"}));
    const FProjectLoading loading;
    height->setName("c");
    EXPECT_EQ(definition().mRenames.size(), 2);
    EXPECT_TRUE(paths().contains("c"));
}

TEST_F(FDefinitionTest, createTakesOnlyPlacesOfDefinitions) {
    auto* geometry = dynamic_cast<FEntryDef*>(definition().getEntryOfScope("Geometry"));
    FEntryDef* span = FEntryDef::create("span", geometry, 5, 2, false, true, "", new FInteger(3));
    EXPECT_EQ(span->getFullName(), "Geometry|span_01");
    EXPECT_EQ(FEntryDef::create("x", span, 1, 1, false, true, "", new FDouble(3)), nullptr);
    EXPECT_EQ(FEntryDef::create("x", &configuration(), 1, 1, false, true, "", new FDouble(3)), nullptr);
    EXPECT_EQ(FEntryDef::create("x", nullptr, 1, 1, false, true, "", new FDouble(3)), nullptr);
    // An entry stands in one place, and not in itself.
    definition().addEntry(FExpr<FEntryBase>(span));
    span->addEntry(FExpr<FEntryBase>(geometry));
    EXPECT_EQ(definition().getEntries().size(), 2);
    EXPECT_TRUE(span->getEntries().isEmpty());
}

TEST_F(FDefinitionTest, aWrongSavedTextRebuildsNoEntries) {
    const QString before = savedModel();
    for (const char* wrong :
         {".addEntry(\"x\", 1)\n.addEntry(", ".adEntry(\"x\", 1)", "} notingDefinition other() {", "exit()"}) {
        EXPECT_FALSE(definition().setEntryDefsFromDB(wrong)) << wrong;
        EXPECT_EQ(savedModel().toStdString(), before.toStdString()) << wrong;
    }
    EXPECT_FALSE(log().isEmpty());
}

}  // namespace
