#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "host/design/FConfiguration.h"
#include "tests/genericintegration/setup/FFakeConnector.h"
#include "tests/support/FModelTest.h"

namespace {

using File = FExpr<FGenIntFile>;

class FDefinitionGenIntTest : public FDirectTest {
 protected:
    FDefinitionGenIntTest() {
        in->setFileName("in.dat");
        out->setFileName("out.dat");
        definition->setFiles({File(in), File(out)});
        FHistory::instance()->clear();
    }
    FExpr<FEntryBase> entry(const QString& path) const { return FExpr<FEntryBase>(definition->getEntryOfScope(path)); }
    QStringList names(const QList<File>& files) const {
        QStringList texts;
        for (const File& file : files) {
            texts.append(file.toString());
        }
        return texts;
    }

    FDefinitionGenInt* definition = FDefinitionGenInt::create({}, "d", {});
    FGenIntCommandFile* in = FGenIntCommandFile::create("in");
    FGenIntResultsFile* out = FGenIntResultsFile::create("out");
};

TEST_F(FDefinitionGenIntTest, listsAreTypedAndKeepTheOrderOfAdding) {
    auto* more = FGenIntCommandFile::create("more");
    more->setFileName("in.dat");
    definition->addFile(File(more));
    definition->addFile(File(in));
    definition->addFile({});
    EXPECT_EQ(names(definition->getFiles()), (QStringList{"in", "out", "more", "in"}));
    EXPECT_EQ(names(definition->getFiles(5)), QStringList{"out"});
    EXPECT_EQ(definition->getFile("in.dat"), File(in));
    EXPECT_FALSE(definition->getFile("IN.dat"));
    in->setFileName("");
    EXPECT_FALSE(definition->getFile(""));
    definition->removeFile(File(in));
    EXPECT_EQ(names(definition->getFiles()), (QStringList{"out", "more"}));
    definition->removeFile(definition->getFiles().first());
    EXPECT_EQ(names(definition->getFiles()), QStringList{"more"}) << "given a handle of its own list";
    EXPECT_FALSE(definition->dependsOn(out));
}

TEST_F(FDefinitionGenIntTest, itHearsOfEachOfItsFiles) {
    for (FGenIntFile* file : {static_cast<FGenIntFile*>(in), static_cast<FGenIntFile*>(out)}) {
        definition->setOutOfDate(false);
        file->setContent("x");
        EXPECT_TRUE(definition->isOutOfDate());
    }
    definition->setFiles({File(out)});
    definition->setOutOfDate(false);
    in->setContent("y");
    EXPECT_FALSE(definition->isOutOfDate());
}

TEST_F(FDefinitionGenIntTest, filesGoWhereItGoesUnlessItIsADefault) {
    definition->setInProject(false);
    definition->setInUserConfig(true);
    EXPECT_FALSE(in->isInProject() || out->isInProject());
    EXPECT_TRUE(in->isInUserConfig() && out->isInUserConfig());
    definition->setDefault(true);
    definition->setInProject(true);
    {
        const FUserStep step("set in user configuration");
        definition->setInUserConfig(false);
    }
    EXPECT_TRUE(in->isInProject());
    EXPECT_TRUE(in->isInUserConfig());
    EXPECT_FALSE(definition->isInUserConfig());
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_TRUE(definition->isInUserConfig());
}

TEST_F(FDefinitionGenIntTest, destroyedFilesLeaveTheListsOneAReading) {
    auto* more = FGenIntResultsFile::create("more");
    definition->addFile(File(more));
    FManaged::destroy(in);
    FManaged::destroy(more);
    EXPECT_EQ(definition->getFiles().size(), 2);
    EXPECT_EQ(definition->getCommandFiles().size(), 0);
    EXPECT_EQ(definition->getResultsFiles().size(), 1);
    EXPECT_EQ(names(definition->getFiles()), QStringList{"out"});
}

TEST_F(FDefinitionGenIntTest, deletingAFileAsksFirst) {
    struct Answer : FUserInterface {
        int ask(const QString& title, const QString& text, const QStringList& buttons, int defaultButton) override {
            asked = QStringList{title, text} + buttons + QStringList{QString::number(defaultButton)};
            return answer;
        }
        QStringList asked;
        int answer = 1;
    } userInterface;
    FUserInterface::replace(&userInterface);
    definition->deleteFile(File(in));
    EXPECT_EQ(userInterface.asked,
              (QStringList{"merix", "Delete template file in permanently?", "Yes", "Cancel", "0"}));
    EXPECT_EQ(names(definition->getFiles()), (QStringList{"in", "out"}));
    const QString before = savedModel();
    userInterface.answer = 0;
    {
        const FUserStep step("delete template file");
        definition->deleteFile(File(in));
    }
    FUserInterface::replace(nullptr);
    EXPECT_EQ(names(definition->getFiles()), QStringList{"out"});
    EXPECT_FALSE(FObject::exists(in));
    EXPECT_TRUE(FHistory::instance()->undo());
    EXPECT_EQ(savedModel().toStdString(), before.toStdString());
}

TEST_F(FDefinitionGenIntTest, aRemovedEntryLeavesItsValueInTheTemplates) {
    run("d.addEntry(\"x\", 1.5)\nd.addEntry(\"G|x\", 2)\nd.addEntry(\"G|H|t\", \"text\")\nd.addEntry(\"none\", NULL, "
        "1, 1, "
        "false, \"\", \"FDouble\")\ngenericIntegrationConfiguration c() { .setDefinition(d) }");
    in->setContent(
        "<entry>X</entry> <ENTRY>x</ENTRY> <entry>x1</entry> <entry>g|X</entry> <entry>G|H|t</entry> "
        "<entry>none</entry>");
    out->setContent("<entry>x</entry>");
    EXPECT_TRUE(definition->commandFileReferencesEntry(entry("G|x")));
    EXPECT_FALSE(definition->commandFileReferencesEntry(entry("G")));
    EXPECT_FALSE(definition->removeEntry(entry("G|x")));
    run("d.removeEntry(\"x\")");
    EXPECT_EQ(in->getPlainContent(),
              "1.5 1.5 <entry>x1</entry> <entry>g|X</entry> <entry>G|H|t</entry> <entry>none</entry>");
    run("d.removeEntry(\"G|x\")\nd.removeEntry(\"G|H|t\")\nd.removeEntry(\"none\")");
    EXPECT_EQ(in->getPlainContent(), "1.5 1.5 <entry>x1</entry> 2 text <entry>none</entry>");
    EXPECT_EQ(out->getPlainContent(), "<entry>x</entry>");
    EXPECT_EQ(textOf("d.getEntryNames()"), "[]");
    // A group takes all that is in it along.
    run("d.addEntry(\"A|x\", 3)\nd.addEntry(\"A|B|y\", 4)\nd.addEntry(\"A|B|C|z\", 5)\nd.addEntry(\"A|none\", NULL, 1, "
        "1, "
        "false, \"\", \"FDouble\")");
    in->setPlainContent("[B64] <entry>A|x</entry> <entry>A|B|y</entry> <entry>a|b|c|Z</entry> <entry>A|none</entry>");
    run("d.removeEntry(\"A|B\")");
    EXPECT_EQ(in->getPlainContent(), "[B64] <entry>A|x</entry> 4 5 <entry>A|none</entry>");
    run("d.removeEntry(\"A\")");
    EXPECT_EQ(in->getPlainContent(), "[B64] 3 4 5 <entry>A|none</entry>");
    in->setContent("<entry>x1</entry>");
    // While a project is loaded, nothing else changes.
    run("d.addEntry(\"x1\", 7)");
    const FProjectLoading loading;
    EXPECT_TRUE(definition->findAndRemoveEntry(entry("x1")));
    EXPECT_TRUE(in->getPlainContent().contains("<entry>x1</entry>"));
}

TEST_F(FDefinitionGenIntTest, renamesReachTemplatesAndConnectorsOfThisDefinition) {
    auto* own = new FFakeConnector(definition);
    own->registerObject();
    auto* other = new FFakeConnector;
    other->registerObject();
    run("d.addEntry(\"G|x\", 2)\nd.addEntry(\"G|y\", 2)");
    in->setContent("<entry>g|X</entry><entry>G|y</entry>");
    out->setContent("<entry>G|x</entry>");
    own->mRefreshed = 0;
    run("d.renameEntry(\"G\", \"Wing\")");
    EXPECT_EQ(in->getPlainContent(), "<entry>Wing|x</entry><entry>Wing|y</entry>");
    EXPECT_EQ(out->getPlainContent(), "<entry>G|x</entry>");
    EXPECT_EQ(own->mRefreshed, 2);
    EXPECT_EQ(other->mRefreshed, 0);
    in->setPlainContent("[B64]<entry>out.dat</entry>");
    out->setFileName("new.dat");
    EXPECT_EQ(in->getPlainContent(), "[B64]<entry>new.dat</entry>");

    own->setOutOfDate(false);
    other->setOutOfDate(false);
    definition->reinitConfigurations(false);
    EXPECT_TRUE(own->isOutOfDate());
    EXPECT_FALSE(other->isOutOfDate());
    auto* plain = new FConfiguration("plain");
    plain->registerObject();
    plain->setDefinition(FExpr<FDefinition>(definition));
    const int count = plain->getEntryMap().size();
    run("d.addEntry(\"late\", 1)");
    EXPECT_EQ(plain->getEntryMap().size(), count) << "only configurations of the definition's own kind follow";
    own->setOutOfDate(false);
    const FProjectLoading loading;
    definition->reinitConfigurations(false);
    EXPECT_FALSE(own->isOutOfDate());
}

TEST_F(FDefinitionGenIntTest, aCloneHasEntriesAndNoFiles) {
    run("d.addEntry(\"G|x\", 2, 3)\nd.setCurFile(in)");
    definition->setOutputPrecision(3);
    auto* copy = dynamic_cast<FDefinitionGenInt*>(definition->clone());
    EXPECT_EQ(copy->furtherSavedCommands(), definition->furtherSavedCommands());
    EXPECT_NE(copy->getEntryOfScope("G|x"), definition->getEntryOfScope("G|x"));
    EXPECT_TRUE(copy->getFiles().isEmpty());
    EXPECT_FALSE(copy->getCurFile());
    EXPECT_EQ(copy->getOutputPrecision(), 6);
}

}  // namespace
