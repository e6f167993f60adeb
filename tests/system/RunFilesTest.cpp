#include "tests/system/FProgramTest.h"
#include "tests/system/FSetUp.h"

#include <QDirIterator>

#include <locale.h>

namespace {

class RunFilesTest : public FProgramTest {
 protected:
    static QString print(const QStringList& values) { return "print(" + values.join(", ") + ")\n"; }
    /** All files of that name below the test's folder. */
    QStringList filesNamed(const QString& name) const {
        QStringList found;
        QDirIterator walk(path(), {name}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            found.append(walk.next());
        }
        return found;
    }
};

TEST_F(RunFilesTest, theLocaleChangesNothing) {
    const QStringList locales{"C", "C.UTF-8", "de_DE.UTF-8"};
    FSetUp setUp = FSetUp::shell("cat \"größe/eingabe.txt\"; cp \"größe/eingabe.txt\" \"größe/aus.txt\"; echo $0");
    setUp.arguments.append("Maß 1,5");
    setUp.entries = QStringList{"\"Größe\", 1234567.5", "\"text\", \"Öl\"", "\"big\", 1e22"};
    setUp.inputs = {{"größe/eingabe.txt", "<entry>GRÖßE</entry> <entry>text</entry> <entry>big</entry> 0,25"}};
    setUp.results = {
        {"größe/aus.txt",
         {FSetUp::value("Größe", 0, 0, ""), FSetUp::value("big", 0, 0, "öl"), FSetUp::value("comma", 0, 2, "")}}};
    const QString text =
        setUp.text() + "conf.setEntryValue(\"Größe\", 1234567.5 / 2)\nok = comp.run()\n" +
        print({"comp.getState()", "format(2.5, \"%8.3f\")", "number(\"2.5\")", FSetUp::number("größe/aus.txt", "Größe"),
               FSetUp::number("größe/aus.txt", "big"), FSetUp::number("größe/aus.txt", "comma"),
               "readText(comp.getWorkingPath() + \"stdout.txt\")"});
    for (const QString& name : locales) {
        const Outcome outcome = script(text, {}, {"LC_ALL=" + name});
        EXPECT_EQ(outcome.output, "finished    2.500 2.5 617283.75 1e+22 0 617283.75 Öl 1e+22 0,25Maß 1,5\n\n")
            << name.toStdString() << "\n"
            << outcome.errors.toStdString();
        EXPECT_EQ(outcome.exitCode, 0);
    }
    const locale_t german = newlocale(LC_ALL_MASK, "de_DE.UTF-8", nullptr);
    if (!german) {
        GTEST_SKIP() << "The locale de_DE.UTF-8 isn't installed, so that decimal commas could not be tried.";
    }
    freelocale(german);
}

TEST_F(RunFilesTest, namesMayHoldBlanksQuotesAndUmlauts) {
    const QString tool = "werk \"zeug\"/läuft 'es' $1.sh";
    write(tool, "#!/bin/sh\n{ for a; do printf '<%s>' \"$a\"; done; echo ' 4.5'; } > 'aus \"gabe\"/für.log'\n");
    QFile::setPermissions(path(tool), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    FSetUp setUp;
    setUp.program = path(tool);
    setUp.arguments = QStringList{"a  b", "\"q\" 'r'", "$HOME *", "", "back\\slash\\", "größe", "%1 two\nlines"};
    const QString input = "ein 'gabe'/mehr \"ä\"/für %1.txt";
    const QString output = "aus \"gabe\"/für.log";
    setUp.inputs = {{input, "x"}, {"aus \"gabe\"/neben.txt", "y"}};
    setUp.results = {{output, {FSetUp::value("f", 0, 0, ">", "Last")}}};
    const Outcome outcome =
        script(setUp.text() + "ok = comp.run()\n" + print({"comp.getState()", FSetUp::number(output, "f")}));
    EXPECT_EQ(outcome.output, "finished 4.5\n") << outcome.errors.toStdString();
    EXPECT_EQ(read(runFile(output)), "<" + setUp.arguments.join("><").toUtf8() + "> 4.5\n");
    EXPECT_EQ(read(runFile(input)), "x");
}

TEST_F(RunFilesTest, nothingIsWrittenOrReadOutsideOfTheFolder) {
    for (const QString name : {"../../stray", "a/../../../stray", "..\\..\\stray"}) {
        FSetUp setUp = FSetUp::shell("true");
        setUp.inputs = {{name, "x"}};
        const Outcome outcome = script(setUp.text() + print({"comp.run()", "comp.getState()"}));
        EXPECT_EQ(outcome.output, "false failed\n") << name.toStdString();
        EXPECT_TRUE(outcome.errors.contains("\"" + name + "\" leads out of the run directory"))
            << outcome.errors.toStdString();
        EXPECT_EQ(filesNamed("*stray*"), QStringList());
    }
    FSetUp setUp = FSetUp::shell("echo 7 >> ../../stray");
    setUp.results = {{"../../stray", {FSetUp::value("f", 0, 0, "")}}};
    const QString shown = "ok = comp.run()\n" + print({FSetUp::number("../../stray", "f")});
    EXPECT_EQ(script(setUp.text() + shown + shown).output, "NaN\nNaN\n");
    ASSERT_EQ(filesNamed("stray").size(), 1);
    EXPECT_EQ(QFileInfo(filesNamed("stray").first()).size(), 4) << "a file outside isn't moved aside either";
}

}  // namespace
