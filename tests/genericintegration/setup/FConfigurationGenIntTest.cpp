#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/core/FNumber.h"
#include "host/design/FEntryDef.h"
#include "tests/support/FModelTest.h"

namespace {

class FConfigurationGenIntTest : public FDirectTest {
 protected:
    FConfigurationGenIntTest() {
        run("genericIntegrationCommandFile in() {\n"
            "    .setContent(\"h=<entry>height</entry> s=<entry>G|span</entry> f=<entry>in.dat</entry>\")\n"
            "    .setFileName(\"in.dat\") .setForceWindowsLineEndings(true)\n}\n"
            "genericIntegrationDefinition d() { .addEntry(\"height\", 40) .addEntry(\"G|span\", 10) .setFiles([in]) }\n"
            "genericIntegrationConfiguration c() { .setDefinition(d); .setEntryValue(\"height\", 41) }");
    }
    FConfigurationGenInt& conf() const { return *object<FConfigurationGenInt>("c"); }
    FDefinitionGenInt& def() const { return *object<FDefinitionGenInt>("d"); }
};

TEST_F(FConfigurationGenIntTest, previewsComeFromTheTemplates) {
    EXPECT_EQ(textOf("c.getPreviewText(\"in.dat\")"), "h=41 s=10 f=");
    run("parameter p(2)\nc.setEntryValue(\"height\", 1.5*p)\nc.setEntryValue(\"G|span\", readText(\"a\\\\b.txt\"))");
    EXPECT_EQ(textOf("c.getPreviewText(\"in.dat\")"), "h=3 s=readText(\"a//b.txt\") f=");
    run("c.getPreviewText(\"in.dta\")");
    EXPECT_TRUE(logHolds("c writes no file \"in.dta\" (did you mean \"in.dat\"?)"));
    run("c.setDefinition(NULL)");
    EXPECT_TRUE(conf().getPreview().isEmpty());
}

TEST_F(FConfigurationGenIntTest, itIsMadeWithOrWithoutEntries) {
    run("genericIntegrationConfiguration e(true)\ngenericIntegrationConfiguration f(1)");
    EXPECT_TRUE(object<FConfigurationGenInt>("e"));
    EXPECT_FALSE(object<FConfigurationGenInt>("f"));
    auto* copy = dynamic_cast<FConfigurationGenInt*>(conf().clone());
    const FExprBase keep(copy);
    copy->registerObject();
    EXPECT_EQ(copy->furtherSavedCommands(), conf().furtherSavedCommands());
    copy->setEntryValue("height", FExprBase(new FDouble(6)));
    EXPECT_EQ(textOf("c.getEntryValue(\"height\")"), "41");
}

TEST_F(FConfigurationGenIntTest, entriesFindTheirRebuiltDefinitions) {
    FConfigurationGenInt::create({}, "empty", false, nullptr)->reassignEntryDefs();
    run("d.addEntry(\"G|H|deep\", 5)\nd.addEntry(\"gone\", 6)\nc.setEntryValue(\"G|span\", 11)\n"
        "c.setEntryValue(\"G|H|deep\", 12)");
    // Rebuild the entry definitions without notifying the configuration: new objects, one missing, one name twice.
    const QList<FExpr<FEntryBase>> old = def().getEntries();
    QList<FExpr<FEntryBase>> fresh;
    for (const FExpr<FEntryBase>& entry : old) {
        if (entry->getName() != "gone") {
            fresh.append(static_cast<FEntryDef*>(entry.ptr())->copy());
        }
    }
    fresh.append(static_cast<FEntryDef*>(old[0].ptr())->copy());
    def().setEntries(fresh);
    def().reassignEntryDefs();
    const auto definitionOf = [this](const char* path) {
        return dynamic_cast<FEntry*>(conf().getEntryOfScope(QString::fromLatin1(path)))->getDefinition().ptr();
    };
    EXPECT_EQ(definitionOf("height"), fresh[0].ptr());
    EXPECT_EQ(definitionOf("G"), fresh[1].ptr());
    EXPECT_EQ(definitionOf("G|H|deep"), def().getEntryOfScope("G|H|deep"));
    EXPECT_EQ(definitionOf("gone"), old[2].ptr());
    EXPECT_EQ(textOf("c.getEntryValue(\"G|H|deep\")"), "12");
    // The values survive, since their definitions were found again.
    conf().reinit(false);
    EXPECT_EQ(textOf("c.getEntryValue(\"G|span\")"), "11");
    EXPECT_EQ(textOf("c.getEntryValue(\"height\")"), "41");
    EXPECT_EQ(conf().getEntryOfScope("gone"), nullptr);
}

}  // namespace
