#include "tests/system/FProgramTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>

FProgramTest::Outcome FProgramTest::merix(const QStringList& arguments, const QString& input,
                                          const QStringList& environment) const {
    QProcess program;
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString& variable : environment) {
        variables.insert(variable.section('=', 0, 0), variable.section('=', 1));
    }
    program.setProcessEnvironment(variables);
    program.setWorkingDirectory(mFolder.path());
    program.start(QStringLiteral(MERIX_PROGRAM), arguments);
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

void FProgramTest::write(const QString& name, const QByteArray& content) const {
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << file.errorString().toStdString();
    file.write(content);
}

QByteArray FProgramTest::read(const QString& name) const {
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return file.readAll();
}
