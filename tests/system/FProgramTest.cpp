#include "tests/system/FProgramTest.h"

#include <QProcessEnvironment>

void FProgramTest::start(QProcess& program, const QStringList& arguments, const QStringList& environment) const {
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("TMPDIR"), path());
    variables.insert(QStringLiteral("MERIX_SETTINGS"), path(QStringLiteral("settings.ini")));
    for (const QString& variable : environment) {
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    }
    program.setProcessEnvironment(variables);
    program.setWorkingDirectory(path());
    program.start(QStringLiteral(MERIX_PROGRAM), arguments);
}

FProgramTest::Outcome FProgramTest::merix(const QStringList& arguments, const QString& input,
                                          const QStringList& environment) const {
    QProcess program;
    start(program, arguments, environment);
    program.write(input.toUtf8());
    program.closeWriteChannel();
    EXPECT_TRUE(program.waitForFinished(120'000)) << program.errorString().toStdString();
    EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

FProgramTest::Outcome FProgramTest::script(const QString& text, const QStringList& arguments,
                                           const QStringList& environment) const {
    write(QStringLiteral("test.merix"), text.toUtf8());
    return merix(QStringList{QStringLiteral("script"), QStringLiteral("test.merix")} + arguments, QString(),
                 environment);
}

QString FProgramTest::runFile(const QString& name) const {
    const QStringList roots = QDir(path()).entryList({QStringLiteral("merix-*")}, QDir::Dirs);
    EXPECT_EQ(roots.size(), 1);
    return roots.value(0) + QStringLiteral("/baseline/comp/") + name;
}
