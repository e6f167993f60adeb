#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntryDef.h"
#include "tests/host/design/FEntryFixture.h"

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

TEST_F(FDefinitionTest, aNewDefaultReachesTheEntriesThatHaveTheOldOne) {
    run("def.addEntry(\"Wing|span\", 5, 3, 2)\nconf.setEntryValue(\"Wing|span[1]\", 9)");
    const QString before = savedModel();
    run("def.setEntryDefault(\"Wing|span\", 6)");
    EXPECT_EQ(textOf("conf.getEntryValue(\"Wing|span[0]\")"), "6");
    EXPECT_EQ(textOf("conf.getEntryValue(\"Wing|span[1]\")"), "9");
    run("undo()");
    EXPECT_EQ(savedModel(), before);
    run("redo()\ndef.setEntryDefault(\"Wing|span\", \"long\")");
    EXPECT_EQ(textOf("conf.getEntryValue(\"Wing|span[0]\")"), "long");
    run("def.setEntryDefault(\"Wing|span\", NULL)");
    EXPECT_EQ(textOf("conf.getEntryValue(\"Wing|span[0]\")"), "NULL");
    const QString without = savedModel();
    run("def.setEntryDefault(\"Wing\", 1)\ndef.setEntryDefault(\"Wing|spam\", 1)\n"
        "def.setEntryDefault(\"Wing|span\", def)");
    EXPECT_TRUE(logHolds("\"Wing\" is a group, which has no default"));
    EXPECT_TRUE(logHolds("(did you mean \"Wing|span\"?)"));
    EXPECT_TRUE(logHolds("can't be a default"));
    EXPECT_EQ(savedModel(), without);
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

TEST_F(FDefinitionTest, eachAdditionIsUndoneAndRedoneAlone) {
    run("def.addEntry(\"G\", NULL, 2, 2)");
    FHistory::instance()->clear();
    const auto state = [this] { return savedModel() + paths().join(' ') + values().join(' '); };
    const QStringList statements{
        "def.addEntry(\"G|a\", 1)",          "def.addEntry(\"top\", 2, 3)",       "def.removeEntry(\"height\")",
        "def.addEntry(\"G|H|b\", 3, 2)",     "conf.setEntryValue(\"G[1]|a\", 7)", "def.renameEntry(\"G\", \"K\")",
        "def.addEntry(\"K|H|c\", \"text\")", "def.addEntry(\"height\", 5)",       "def.addEntry(\"last\", 6)"};
    QStringList states{state()};
    for (const QString& statement : statements) {
        ASSERT_TRUE(run(statement));
        states.append(state());
        EXPECT_NE(states.last(), states[states.size() - 2]) << statement.toStdString();
        // What followed step by step is what the definition asks for.
        configuration().reinit(false);
        EXPECT_EQ(state().toStdString(), states.last().toStdString()) << statement.toStdString();
    }
    for (int round = 0; round < 2; ++round) {
        for (int i = statements.size() - 1; i >= 0; --i) {
            ASSERT_TRUE(FHistory::instance()->undo());
            EXPECT_EQ(state().toStdString(), states[i].toStdString()) << "undo " << statements[i].toStdString();
        }
        for (int i = 0; i < statements.size(); ++i) {
            ASSERT_TRUE(FHistory::instance()->redo());
            EXPECT_EQ(state().toStdString(), states[i + 1].toStdString()) << "redo " << statements[i].toStdString();
        }
    }
    ASSERT_TRUE(FHistory::instance()->undo());
    ASSERT_TRUE(run("def.addEntry(\"other\", 8)"));
    EXPECT_TRUE(paths().contains("other") && !paths().contains("last"));
}

TEST_F(FDefinitionTest, stepsHoldOnlyWhatTheyAdd) {
    constexpr int count = 500;
    run("def.addEntry(\"G|first\", 0)");
    const auto memoryOfMore = [this](int first) {
        const std::size_t before = FHistory::instance()->getSize();
        for (int i = first; i < first + count; ++i) {
            const FUserStep step("add");
            FEntryDef::create("x" + QString::number(i), definition().getEntryOfScope("G"), 1, 1, false, true, "",
                              new FDouble(i));
        }
        return FHistory::instance()->getSize() - before;
    };
    const std::size_t few = memoryOfMore(0);
    EXPECT_LT(memoryOfMore(count), few + few / 2);
    EXPECT_EQ(paths().size(), 2 * count + 3);
}

TEST_F(FDefinitionTest, createTakesOnlyPlacesOfDefinitions) {
    auto* geometry = dynamic_cast<FEntryDef*>(definition().getEntryOfScope("Geometry"));
    FEntryDef* span = FEntryDef::create("span", geometry, 5, 2, false, true, "", new FInteger(3));
    EXPECT_EQ(span->getFullName(), "Geometry|span_01");
    EXPECT_EQ(FEntryDef::create("x", span, 1, 1, false, true, "", new FDouble(3)), nullptr);
    EXPECT_EQ(FEntryDef::create("x", &configuration(), 1, 1, false, true, "", new FDouble(3)), nullptr);
    EXPECT_EQ(FEntryDef::create("x", nullptr, 1, 1, false, true, "", new FDouble(3)), nullptr);
    // An entry is in one place, and not in itself.
    definition().addEntry(FExpr<FEntryBase>(span));
    span->addEntry(FExpr<FEntryBase>(geometry));
    EXPECT_EQ(definition().getEntries().size(), 2);
    EXPECT_TRUE(span->getEntries().isEmpty());
}

TEST_F(FDefinitionTest, entriesWithoutADefinitionStayWhenEntriesAreRebuilt) {
    run("conf.setEntryValue(\"height\", 7).setEntryValue(\"Geometry|span\", 8)");
    ASSERT_TRUE(definition().setEntryDefsFromDB(".addEntry(\"new\", 1)\n.addEntry(\"Geometry|new\", 2)"));
    EXPECT_EQ(paths(), (QStringList{"Geometry|new", "Geometry|span", "height", "new"}));
    EXPECT_EQ(values(), (QStringList{"2", "8", "7", "1"}));
    run("def.addEntry(\"more\", 3)");
    EXPECT_EQ(paths(), (QStringList{"Geometry|new", "more", "new"})) << "a configuration that follows has no others";
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
