#include "tests/system/FProgramTest.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QThread>

namespace {

class ProjectTest : public FProgramTest {
 protected:
    /** The value of a parameter in the project's text. */
    static QString valueIn(const QString& project, const QString& parameter) {
        const QRegularExpression pattern("\nparameter " + parameter + R"(\(\) \{\n[^}]*setValue\((\d+)\);\n\}\n)");
        return pattern.match(project).captured(1);
    }
};

TEST_F(ProjectTest, aKillWhileSavingLeavesTheOldFileOrTheNewOne) {
    write("body.txt", QByteArray(50'000, 'x'));
    const Outcome made = script(
        "parameter first(0)\ngenericIntegrationCommandFile body() { .setContent(readText(\"body.txt\")) }\n"
        "parameter last(0)\nsaveProject(\"p.mrx\")\n");
    ASSERT_EQ(made.exitCode, 0) << made.errors.toStdString();
    write("loop.merix",
          "x = openProject(\"p.mrx\")\nprint(\"open\")\ni = first.getValue()\nwhile (true) {\n  i = i + 1\n"
          "  first.setValue(i)\n  last.setValue(i)\n  x = saveProject()\n}\n");
    QRandomGenerator random(4);
    int saves = 0;
    for (int round = 0; round < 100; ++round) {
        QProcess program;
        start(program, {"script", "loop.merix"});
        ASSERT_TRUE(program.waitForReadyRead());
        QThread::usleep(random.bounded(120'000));
        program.kill();
        ASSERT_TRUE(program.waitForFinished());
        const QString project = QString::fromUtf8(read("p.mrx"));
        const QString value = valueIn(project, "first");
        ASSERT_TRUE(project.startsWith("// merix project, format 1\n")) << round;
        ASSERT_FALSE(value.isEmpty()) << round;
        ASSERT_EQ(valueIn(project, "last"), value) << round;
        saves = value.toInt();
    }
    EXPECT_GT(saves, 3);
    const Outcome opened = script(
        "print(openProject(\"p.mrx\", true))\nprint(first.getValue() - last.getValue() <= 1, exists(\"body\"))\n");
    EXPECT_EQ(opened.output, "true\ntrue true\n") << opened.errors.toStdString();
}

TEST_F(ProjectTest, connectorsSurviveAProgramWithoutWindows) {
    write("make.merix", R"(
genericIntegrationResultsFile out1() { .setFileName("stdout.txt"); .setValues([["f", 0, 0, "f", First, "FDouble", ""]]) }
softwareConnector wing()
softwareConnector tail() { .setItemSize(Small); .setResultsPath("/data/ä") }
for (c in [Runner, Runner_01]) { c.setExecutable("echo"); c.setArguments(["f 7"]) }
definitionGenInt.addEntry("x", 1)
definitionGenInt.setFiles([out1])
saveProject("p.mrx")
)");
    ASSERT_EQ(merix({"script", "make.merix"}).exitCode, 0);
    QStringList lines = QString::fromUtf8(read("p.mrx")).split('\n');
    const Outcome batch = script(
        "x = openProject(\"p.mrx\")\nconfigurationGenInt.setEntryValue(\"x\", 50)\n"
        "print(Runner.run(), Runner_01.run(), Runner.getResults().getDataAt(\"f\", 0))\nx = saveProject()\n");
    EXPECT_EQ(batch.output, "true true 7\n") << batch.errors.toStdString();
    for (const QString& line : QString::fromUtf8(read("p.mrx")).split('\n')) {
        EXPECT_TRUE(lines.removeOne(line) || line == "    .setEntryValue(\"x\",50);") << line.toStdString();
    }
    EXPECT_EQ(lines, QStringList()) << "lines that are gone";
}

}  // namespace
