#include "tests/system/FProgramTest.h"
#include "tests/system/FSetUp.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QThread>

namespace {

class ProjectTest : public FProgramTest {
 protected:
    QStringList files() const {
        return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    /** The value of a parameter as the project's text has it. */
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

TEST_F(ProjectTest, aCrashLosesNothingThatWasDone) {
    ASSERT_EQ(script("parameter a(1)\nsaveProject(\"p.mrx\")\n").exitCode, 0);
    write("crash.merix", "x = openProject(\"p.mrx\")\na.setValue(2)\nprint(\"done\")\nwhile (true) {}\n");
    QProcess program;
    start(program, {"script", "crash.merix"});
    ASSERT_TRUE(program.waitForReadyRead());
    const Outcome beside = script("print(openProject(\"p.mrx\"))\nprint(a.getValue(), saveProject())\n");
    EXPECT_EQ(beside.output, "true\n1 false\n");
    EXPECT_TRUE(beside.errors.contains("the project is open elsewhere (merix, process")) << beside.errors.toStdString();
    program.kill();
    ASSERT_TRUE(program.waitForFinished());
    const Outcome after = script(
        "x = openProject(\"p.mrx\")\nprint(a.getValue())\nx = openProject(\"p.mrx\", true)\n"
        "print(a.getValue(), saveProject())\n");
    EXPECT_EQ(after.output, "1\n2 true\n");
    EXPECT_TRUE(after.errors.contains("there is unsaved work of ")) << after.errors.toStdString();
    EXPECT_EQ(files(), (QStringList{"crash.merix", "p.mrx", "p.mrx~", "test.merix"}));
}

TEST_F(ProjectTest, aHostileProjectDoesNothingOutsideTheRun) {
    FSetUp setUp = FSetUp::shell("echo ran > ran.txt");
    setUp.inputs = {{"../../../outside.txt", "harm\n"}};
    ASSERT_EQ(script(setUp.text() + "saveProject(\"p.mrx\")\n").exitCode, 0);
    QByteArray project = read("p.mrx");
    project +=
        "parameter p(comp.run())\nparameter q(include(\"evil.merix\"))\ncomp.run()\ninclude(\"evil.merix\")\n"
        "genericIntegrationResultsFile r(comp.run()) {\n    .setFileName(readText(\"evil.merix\"));\n}\n"
        "genericIntegrationDefinition deep() {\n    .addEntry(\"" +
        QByteArray("a|").repeated(1'000'000) + "a\", 1);\n}\n";
    write("p.mrx", project);
    write("evil.merix", "saveProject(\"evil.mrx\")\n");
    const Outcome outcome = script("print(openProject(\"p.mrx\"))\nprint(comp.run())\n");
    EXPECT_EQ(outcome.output, "false\nfalse\n");
    for (const char* told :
         {"\"run\" does something and can't stand in an expression that is kept", "\"include\" does something",
          "can't stand in a saved text", "more than 50 levels", "outside"}) {
        EXPECT_TRUE(outcome.errors.contains(told)) << told << "\n" << outcome.errors.left(3000).toStdString();
    }
    EXPECT_EQ(files(), (QStringList{"evil.merix", "p.mrx", "p.results", "test.merix"}));
    EXPECT_FALSE(QFile::exists(path("p.results/baseline/comp/ran.txt")));
}

}  // namespace
