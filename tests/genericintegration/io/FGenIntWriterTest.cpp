#include "genericintegration/io/FGenIntWriter.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FString.h"
#include "host/core/FUserStep.h"
#include "tests/support/FModelTest.h"
#include "tests/support/FTestFolder.h"
#include "tests/support/randomCases.h"

#include <filesystem>
#include <functional>
#include <random>
#include <set>

namespace {

class FGenIntWriterTest : public FDirectTest {
 protected:
    FGenIntCommandFile* add(const QString& fileName, const QString& content) {
        FGenIntCommandFile* file = FGenIntCommandFile::create(QString());
        file->setFileName(fileName);
        file->setContent(content);
        definition->addFile(FExpr<FGenIntFile>(file));
        return file;
    }
    bool write() const {
        return FGenIntWriter::instance()->exportCommandFiles(FExpr<FConfiguration>(configuration), folder.path() + "/");
    }
    QMap<QString, QString> preview() const {
        QMap<QString, QString> texts;
        EXPECT_TRUE(FGenIntWriter::instance()->previewCommandFiles(FExpr<FConfiguration>(configuration), texts));
        return texts;
    }

    FTestFolder folder;
    FDefinitionGenInt* definition = FDefinitionGenInt::create({}, "def", {});
    FConfigurationGenInt* configuration = FConfigurationGenInt::create({}, "conf", false, definition);
};

TEST_F(FGenIntWriterTest, valuesReplaceTagsWhateverTheirKind) {
    run("parameter p(4)\ndef.addEntry(\"Wing|span\", 10)\ndef.addEntry(\"name\", \"a \\\\ <entry>name</entry>\")\n"
        "def.addEntry(\"on\", true)\nconf.setEntryValue(\"Wing|span\", 2*p+0.5)");
    add("sub/in.dat", "s=<ENTRY>wing|SPAN</Entry>\r\nn=<entry>name</entry> o=<entry>on</entry> x=<entry>none</entry>.");
    add("tail.dat", "a<entry>b");
    ASSERT_TRUE(write()) << logText();
    EXPECT_EQ(folder.read("sub/in.dat"), "s=8.5\r\nn=a \\ <entry>name</entry> o=true x=.");
    EXPECT_EQ(folder.read("tail.dat"), "a");
    EXPECT_EQ(
        log(),
        QStringList{"note: Generic Integration Writer: Entry none is not part of configuration conf. Entry skipped"});
    run("p.setValue(6)");
    ASSERT_TRUE(write());
    EXPECT_TRUE(folder.read("sub/in.dat").startsWith("s=12.5\r\n"));
}

TEST_F(FGenIntWriterTest, filesAreNamedDifferentlyInExportAndPreview) {
    add("run.dat", "");
    add("out[1].txt", "<entry>Exports|run.dat</entry>,<entry>run.dat</entry>,<entry>exports|OUT</entry>");
    ASSERT_TRUE(write());
    EXPECT_EQ(folder.read("out[1].txt"), "run.dat,,out[1].txt");
    // Without its first eight characters, the name of the file is empty.
    EXPECT_EQ(preview().value("out[1].txt"), ",,");
    EXPECT_EQ(preview().keys(), (QStringList{"out[1].txt", "run.dat"}));
}

TEST_F(FGenIntWriterTest, forcedLineEndsApplyToTheTemplateInExportsOnly) {
    run("def.addEntry(\"lines\", \"1\n2\")");
    add("in.dat", "a\n<entry>lines</entry>\r\n")->setForceWindowsLineEndings(true);
    ASSERT_TRUE(write());
    EXPECT_EQ(folder.read("in.dat"), "a\r\n1\n2\r\r\n");
    EXPECT_EQ(preview().value("in.dat"), "a\n1\n2\r\n");
}

TEST_F(FGenIntWriterTest, fileNamesAreBroughtUpToDateWithoutATag) {
    run("def.addEntry(\"a\", 1)\ndef.addEntry(\"b\", \"text\")");
    const auto isBroughtUpToDate = [this](const FExprBase& value) {
        value.getStored()->setOutOfDate(true);
        EXPECT_TRUE(write());
        return !value.getStored()->isOutOfDate();
    };
    const auto set = [this](const FExprBase& value) {
        const FUserStep step("set entry value");
        configuration->setEntryValue("b", value);
        return value;
    };
    EXPECT_TRUE(isBroughtUpToDate(set(FExprBase(new FFileName("x")))));
    EXPECT_FALSE(isBroughtUpToDate(set(FExprBase(new FString("x")))));
    const FExprBase name = set(FExprBase(new FFileName("y")));
    run("undo()");
    EXPECT_FALSE(isBroughtUpToDate(name));
    run("redo()");
    EXPECT_TRUE(isBroughtUpToDate(name));
}

TEST_F(FGenIntWriterTest, theCacheBetweenExportsNeverChangesAResult) {
    FConfigurationGenInt* other = FConfigurationGenInt::create({}, "other", false, definition);
    const QString tags =
        "<entry>a</entry>,<entry>b</entry>,<entry>c</entry>,<entry>g|a</entry>,<entry>Exports|x</entry>,"
        "<entry>x</entry>";
    FGenIntFile* in = add("in.dat", tags);
    FGenIntFile* named = add("x", "");
    const std::vector<std::function<void()>> changes{
        [&] { run("def.addEntry(\"a\", 1)"); },
        [&] { run("def.addEntry(\"b\", 2)"); },
        [&] { run("def.addEntry(\"g|a\", 3)"); },
        [&] { run("def.removeEntry(\"b\")"); },
        [&] { run("conf.setEntryValue(\"a\", 4)"); },
        [&] { run("other.setEntryValue(\"a\", 5)"); },
        [&] { run("undo()"); },
        [&] { run("redo()"); },
        [&] { std::swap(configuration, other); },
        [&] { named->setFileName(named->getFileName() == "x" ? "y" : "x"); },
        [&] { run("def.renameEntry(\"a\", \"c\")"); },
        [&] {
            if (definition->getFiles().size() > 1) {
                definition->removeFile(definition->getFiles().last());
            } else {
                definition->addFile(FExpr<FGenIntFile>(named));
            }
        },
        [&] { in->setContent(tags); },  // which removing and renaming entries change
        [&] { preview(); },
    };
    std::mt19937 random(3);
    std::set<QByteArray> seen;
    for (int round = randomCases(150); round > 0; --round) {
        changes[random() % changes.size()]();
        ASSERT_TRUE(write());
        const QByteArray kept = folder.read("in.dat");
        definition->writerCache().reset();
        ASSERT_TRUE(write());
        ASSERT_EQ(kept, folder.read("in.dat"));
        seen.insert(kept);
    }
    EXPECT_GT(seen.size(), 10U);
}

TEST_F(FGenIntWriterTest, aFileThatCantBeOpenedEndsTheExport) {
    add("first.dat", "1");
    QDir(folder.path()).mkpath("blocked.dat");
    add("blocked.dat", "2");
    add("last.dat", "3");
    EXPECT_FALSE(write());
    EXPECT_EQ(log(), QStringList{"note: Generic Integration Writer: Could not open file " + folder.path("blocked.dat") +
                                 " for writing. Writing process aborted."});
    EXPECT_EQ(folder.read("first.dat"), "1");
    EXPECT_FALSE(QFile::exists(folder.path("last.dat")));
}

TEST_F(FGenIntWriterTest, nothingIsWrittenOutsideOfTheDirectory) {
    const FTestFolder other;
    const QString kept = other.write("kept", "kept");
    ASSERT_TRUE(QFile::link(kept, folder.path("link")));
    std::filesystem::create_hard_link(kept.toStdString(), folder.path("hard link").toStdString());
    ASSERT_TRUE(QFile::link(other.path(), folder.path("out")));
    add("link", "x");
    FGenIntCommandFile* file = add("hard link", "y");
    EXPECT_TRUE(write());
    EXPECT_EQ(folder.read("link"), "x");
    EXPECT_EQ(folder.read("hard link"), "y");
    EXPECT_EQ(other.read("kept"), "kept");
    const QString stray =
        QFileInfo(folder.path()).fileName() + "-stray";  // next to it, where there may be files of others
    for (const QString& name : {QString("out/new/file"), "../" + stray, "a/../../" + stray, "..\\" + stray}) {
        file->setFileName(name);
        EXPECT_FALSE(write());
        EXPECT_TRUE(logHolds("\"" + name + "\" leads out of the run directory")) << name.toStdString();
    }
    EXPECT_EQ(QDir(other.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"kept"});
    EXPECT_FALSE(folder.has("../" + stray));
}

}  // namespace
