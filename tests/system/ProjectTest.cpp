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

}  // namespace
