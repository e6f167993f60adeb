#include "host/design/FEntryDef.h"
#include "host/design/FInputFile.h"
#include "tests/host/design/FEntryFixture.h"

#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"

namespace {

class FDefinitionTest : public FEntryFixture {};

TEST_F(FDefinitionTest, addEntryMakesGroupsAndGivesConfigurationsTheEntry) {
    ASSERT_TRUE(
        run("def.addEntry(\"Geometry|Wing|chord\", 2*3)\n"
            "def.addEntry(\"flag\", true).addEntry(\"name\", \"10m\")\n"
            "def.addEntry(\"Exports|mesh\", inputFile(\"a/mesh.dat\"))\n"
            "def.addEntry(\"half length\", -0.5)"));
    EXPECT_EQ(paths(), (QStringList{"Exports|mesh", "Geometry|Wing|chord", "Geometry|span", "flag", "half length",
                                    "height", "name"}));
    EXPECT_EQ(values(), (QStringList{"a/mesh.dat", "6", "10", "true", "-0.5", "40", "10m"}));
    EXPECT_EQ(textOf("def.getEntryNames()"),
              "[height,Geometry|span,Geometry|Wing|chord,flag,name,Exports|mesh,half length]");
    // A number is a double, however it was written.
    EXPECT_EQ(evaluate("conf.getEntryValue(\"height\")").getObject()->getClass(), "FDouble");
    EXPECT_EQ(definition().getEntryOfScope("Geometry")->isGroup(), true);
    EXPECT_EQ(definition().getEntryOfScope("Geometry|Wing|chord")->getFullName(), "Geometry|Wing|chord");
    EXPECT_EQ(definition().getEntryOfScope("Geometry|Wing|x"), nullptr);
    EXPECT_EQ(definition().getEntryOfScope("height|x"), nullptr);
    EXPECT_EQ(definition().getEntryOfScope(""), nullptr);
}

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
        {'"' + QStringList(QVector<QString>(60, "g").toList()).join('|') + "\", 1", "more than 50 levels"}};
    for (const QStringList& attempt : refused) {
        ASSERT_TRUE(run("r = def.addEntry(" + attempt[0] + ")\nif (r != NULL) { exit(1) }"));
        EXPECT_TRUE(logHolds(attempt[1])) << attempt[0].toStdString() << "\n" << log().join('\n').toStdString();
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

TEST_F(FDefinitionTest, theSavedTextBringsEverythingBack) {
    run("def.addEntry(\"A|B|c\", \"q\\\"|\\\\\", 3)\ndef.addEntry(\"A|B|d\", NULL, 2, 0, true, \"about it\", "
        "\"FString\")\n"
        "def.addEntry(\"Layer\", NULL, 3, 2)\ndef.addEntry(\"Layer|t\", 0.1)\ndef.addEntry(\"Layer|file\", "
        "inputFile(\"a.dat\",\"sub\"))\ndef.addEntry(\"Empty\", NULL)\ndef.addEntry(\"nan\", number(\"nan\"))\n"
        "def.addEntry(\"out\", resultsFileName(\"o.vtk\"))\ndef.addEntry(\"geo\", geometryExport(\"g.stl\",0,[def]))\n"
        "conf.setEntryValue(\"Layer[1]|t\", 2*3)\nconf.setEntryValue(\"Layer[2]|t\", 0.1)\n"
        "conf.setEntryValue(\"out\", resultsFileName(\"r.txt\",3))\nconf.setEntryValue(\"A|B|c[2]\", NULL)");
    EXPECT_EQ(log(), QStringList());
    const QString saved = savedModel();
    EXPECT_TRUE(saved.contains(".addEntry(\"A|B|d\",NULL,2,0,true,\"about it\",\"FString\");")) << saved.toStdString();
    EXPECT_TRUE(saved.contains(".addEntry(\"Geometry|span\",10);"));
    EXPECT_FALSE(saved.contains("\"Geometry\","));
    EXPECT_TRUE(saved.contains(".setEntryValue(\"Layer[2]|file\",inputFile(\"a.dat\",\"sub\"));"));
    const QStringList before = values();
    reload();
    EXPECT_EQ(savedModel().toStdString(), saved.toStdString());
    EXPECT_EQ(values(), before);
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
    EXPECT_EQ(span->getMinOccurrences(), 2);
    EXPECT_EQ(paths(), (QStringList{"Geometry|span", "Geometry|span_01[0]", "Geometry|span_01[1]", "height"}));
    EXPECT_EQ(FEntryDef::create("x", span, 1, 1, false, true, "", new FDouble(3)), nullptr);
    EXPECT_EQ(FEntryDef::create("x", &configuration(), 1, 1, false, true, "", new FDouble(3)), nullptr);
    EXPECT_EQ(FEntryDef::create("x", nullptr, 1, 1, false, true, "", new FDouble(3)), nullptr);
    FEntryDef* group = FEntryDef::create("", &definition(), 1, 1, false, false, "", nullptr);
    EXPECT_TRUE(group->isGroup());
    EXPECT_EQ(group->getName(), "newEntry");
    FEntryDef* file = FEntryDef::create("f", group, 1, 1, false, false, "", FInputFile::null());
    EXPECT_EQ(file->getType(), FInputFile::null());
    EXPECT_TRUE(configuration().getEntry(FInputFile::null(), true).isEmpty());
    EXPECT_EQ(configuration().getEntry(FInputFile::null(), false).size(), 1);
    // An entry stands in one place, and not in itself.
    definition().addEntry(FExpr<FEntryBase>(span));
    span->addEntry(FExpr<FEntryBase>(geometry));
    EXPECT_EQ(definition().getEntries().size(), 3);
    EXPECT_TRUE(span->getEntries().isEmpty());
}

TEST_F(FDefinitionTest, entriesAreRebuiltFromTheirSavedText) {
    ASSERT_TRUE(
        run("def.addEntry(\"note\", \"a \\\"}\\\" \\\\ // b\", 2, 0, true, \"why\")\n"
            "conf.setEntryValue(\"Geometry|span\", 11)"));
    const QString before = savedModel();
    const QString text = "    ." + definition().furtherSavedCommands().join(";\n    .") + ";\n";
    const FExpr<FEntryBase> old = definition().getEntries().first();
    EXPECT_TRUE(definition().setEntryDefsFromDB(text)) << log().join('\n').toStdString();
    EXPECT_NE(definition().getEntries().first(), old);
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    EXPECT_TRUE(definition().setEntryDefsFromDB(".addEntry(\"Geometry|span\", 1)\n.addEntry(\"new\", 2)"));
    EXPECT_EQ(values(), (QStringList{"11", "2"}));
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
    for (const char* wrong :
         {".addEntry(\"x\", 1)\n.addEntry(", ".adEntry(\"x\", 1)", "} notingDefinition other() {", "exit()"}) {
        EXPECT_FALSE(definition().setEntryDefsFromDB(wrong)) << wrong;
        EXPECT_EQ(savedModel().toStdString(), before.toStdString()) << wrong;
    }
    EXPECT_FALSE(log().isEmpty());
    EXPECT_TRUE(definition().setEntryDefsFromDB(""));
    EXPECT_TRUE(paths().isEmpty());
}

}  // namespace
