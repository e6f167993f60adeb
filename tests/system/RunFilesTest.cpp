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
        QDirIterator walk(mFolder.path(), {name}, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            found.append(walk.next());
        }
        return found;
    }
    /** An awk program that makes a report and a series of two entries. */
    static FSetUp series() {
        FSetUp setUp;
        setUp.program = "awk";
        setUp.arguments = QStringList{
            "{ print \"said\", $1 + $2; print \"said\", $1 - $2;"
            "  print \"masses\\n\" $1 * $2 \" kg\\ntotal mass (above)\" > \"out.dat\";"
            "  for (i = 1; i <= 10; ++i) print \"step\", i, i * $1 > \"out.dat\" }",
            "model/in.txt"};
        setUp.entries = QStringList{"\"Geometry|a\", 3", "\"Geometry|b\", 4.5"};
        setUp.inputs = {{"model/in.txt", "<entry>Geometry|a</entry> <entry>Geometry|b</entry>\n"}};
        setUp.results = {
            {"out.dat",
             {FSetUp::value("mass", -1, 0, "total mass"), FSetUp::average("mean", 1, 4),
              FSetUp::value("none", 0, 2, "total mass")}},
            {"stdout.txt", {FSetUp::value("sum", 0, 0, "said"), FSetUp::value("difference", 0, 0, "said", "Last")}}};
        return setUp;
    }
    static QString seriesNumbers() {
        return print({FSetUp::number("out.dat", "mass"), FSetUp::number("out.dat", "mean"),
                      FSetUp::number("out.dat", "none"), FSetUp::number("stdout.txt", "sum"),
                      FSetUp::number("stdout.txt", "difference")});
    }
};

TEST_F(RunFilesTest, numbersFollowTheEntries) {
    // The mean of the last four of a, 2 a … 10 a is 8.5 a; there is no number behind "total mass".
    const Outcome outcome =
        script(series().text() + "ok = comp.run()\n" + seriesNumbers() +
               "conf.setEntryValue(\"Geometry|a\", 2)\nconf.setEntryValue(\"Geometry|b\", -0.25)\nok = comp.run()\n" +
               seriesNumbers());
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.output, "13.5 25.5 NaN 7.5 -1.5\n-0.5 17 NaN 1.75 2.25\n") << outcome.errors.toStdString();
}

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

TEST_F(RunFilesTest, tagsAreClosedAndValuesAreNotSearchedAgain) {
    FSetUp setUp = FSetUp::shell("cat in.txt");
    setUp.entries =
        QStringList{"\"x1\", \"one\"", "\"x10\", \"ten\"", "\"tag\", " + FSetUp::quoted("<entry>x1</entry>"),
                    "\"open\", \"<entry>\"", "\"path\", " + FSetUp::quoted("C:\\1\\x10\\&\\0\\\\")};
    setUp.inputs = {{"in.txt",
                     "[<entry>x1</entry>][<entry>x10</entry>][<entry>x1 </entry>][<entry>tag</entry>]"
                     "[<entry>open</entry>][<entry>path</entry>][<entry>x1</entry>]"}};
    const QString shown = "ok = comp.run()\nprint(readText(comp.getWorkingPath() + \"stdout.txt\"))\n";
    const QString rest = "[<entry>x1</entry>][<entry>][C:\\1\\x10\\&\\0\\\\][one]\n";
    const Outcome outcome = script(setUp.text() + shown + "def.addEntry(\"x1 \", \"blank\")\n" + shown);
    EXPECT_EQ(outcome.output, "[one][ten][]" + rest + "[one][ten][blank]" + rest) << outcome.errors.toStdString();
    EXPECT_EQ(outcome.errors.count("Entry x1  is not part of configuration conf"), 1);
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

TEST_F(RunFilesTest, bytesOfOtherEncodingsAreRead) {
    FSetUp setUp = FSetUp::shell(
        "printf 'begin\\n\\370\\376 Gr\\366\\337e \\000 = 2.5 \\360\\237 7\\n\\200\\200 last: 8\\303' | tee out.log");
    const QStringList values{FSetUp::value("a", 0, 0, " = "), FSetUp::value("b", 0, 1, " = "),
                             FSetUp::value("c", 0, 0, "LAST:"), FSetUp::value("d", -1, 1, "last:")};
    setUp.results = {{"out.log", values}, {"stdout.txt", values}};
    QString text = setUp.text() + "ok = comp.run()\n";
    for (const QString file : {"out.log", "stdout.txt"}) {
        text += print({FSetUp::number(file, "a"), FSetUp::number(file, "b"), FSetUp::number(file, "c"),
                       FSetUp::number(file, "d")});
    }
    const Outcome outcome = script(text);
    EXPECT_EQ(outcome.output, "2.5 7 8 7\n2.5 7 8 7\n") << outcome.errors.toStdString();
    EXPECT_EQ(outcome.exitCode, 0);
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
