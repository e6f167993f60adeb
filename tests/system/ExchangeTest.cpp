#include "tests/system/FProgramTest.h"
#include "tests/system/FSetUp.h"

namespace {

class ExchangeTest : public FProgramTest {};

TEST_F(ExchangeTest, aDefinitionRunsInAnotherProjectWithTheSameNumbers) {
    FSetUp setUp = FSetUp::shell("cat 'in \"1\".txt' > out.dat");
    setUp.entries = QStringList{"\"x\", 2", "\"G|y\", \"a \\\\ ]]>\\\"\"", "\"flag\", true, 3, 0, true, \"why <b>\""};
    setUp.inputs = {{"in \"1\".txt", "f <entry>x</entry>\n\"g\\]]> 7 <entry>G|y</entry>\n"}};
    setUp.results = {{"out.dat", {FSetUp::value("f", 0, 0, "f "), FSetUp::value("g 1", 0, 0, "\"g\\]]>", "Last")}}};
    const QString run = "conf.setEntryValue(\"x\", 12.5)\nprint(comp.run(), " + FSetUp::number("out.dat", "f") + ", " +
                        FSetUp::number("out.dat", "g 1") + ")\n" +
                        "print(readText(comp.getWorkingPath() + \"in \\\"1\\\".txt\"))\n";
    const Outcome first = script(setUp.text() + run + "print(def.save(\"übung.lodm\"))");
    ASSERT_TRUE(first.output.startsWith("true 12.5 7\nf 12.5\n\"g\\]]> 7 a \\ ]]>\"\n")) << first.errors.toStdString();
    ASSERT_TRUE(first.output.endsWith("true\n")) << first.errors.toStdString();

    const QString rest = setUp.text().mid(setUp.text().indexOf("genericIntegrationConfiguration"));
    const Outcome second = script("importGenIntDefinition(\"$FOLDER/übung.lodm\")\n" + rest + run + "print(true)", {},
                                  {"FOLDER=" + mFolder.path()});
    EXPECT_EQ(second.output, first.output) << second.errors.toStdString();
    EXPECT_EQ(second.exitCode, 0);
}

TEST_F(ExchangeTest, examplesKeepTheirNumbersThroughAFile) {
    const QString cantilever = MERIX_EXAMPLES "/cantilever";
    if (!QFile::exists("/usr/bin/ccx")) {
        GTEST_SKIP() << "CalculiX isn't installed.";
    }
    write("export.merix", QString("include(\"%1/cantilever.merix\")\nprint(beamDefinition.save(\"beam.lodm\"))\n")
                              .arg(cantilever)
                              .toUtf8());
    const Outcome first = merix({"script", "export.merix"});
    ASSERT_TRUE(first.output.endsWith("\ntrue\n")) << first.errors.toStdString();
    QFile file(cantilever + "/cantilever.merix");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    const Outcome second = script("importGenIntDefinition(\"beam.lodm\")\n" +
                                  text.mid(text.indexOf("genericIntegrationConfiguration")) + "\nprint(true)\n");
    EXPECT_EQ(second.output, first.output) << second.errors.toStdString();
}

TEST_F(ExchangeTest, aFileThatCannotBeReadIsTold) {
    write("d.lodm", "<definition version=\"1\">\n<entry/>\n</definition>\n");
    const Outcome outcome = script("print(importGenIntDefinition(\"d.lodm\"))\nprint(importGenIntDefinition())");
    EXPECT_EQ(outcome.output, "NULL\nNULL\n");
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_TRUE(outcome.errors.contains("d.lodm:2:9: the definition can't be read: expected a name"))
        << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("no window can ask for a file"));
}

}  // namespace
