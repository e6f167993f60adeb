#include "host/run/FProgramSettings.h"

#include "host/run/FSafePath.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// Not its content: a program may have hundreds of megabytes, and the window asks for the set-up after each change.
QString versionOf(const QString& path) {
    const QFileInfo file(path);
    return file.isFile()
               ? QStringLiteral("%1 bytes of %2")
                     .arg(QString::number(file.size()), file.lastModified().toUTC().toString(Qt::ISODateWithMs))
               : QString();
}

}  // namespace

const QString& FProgramSettings::outputFile() {
    static const QString name = QStringLiteral("stdout.txt");
    return name;
}

const QString& FProgramSettings::errorFile() {
    static const QString name = QStringLiteral("stderr.txt");
    return name;
}

FProgramSearch FProgramSettings::search() const {
    QString path = qEnvironmentVariable("PATH", QStringLiteral("/bin:/usr/bin"));
    const QString start = QStringLiteral("PATH=");
    for (const QString& variable : environment) {
        path = variable.startsWith(start) ? variable.mid(start.size()) : path;
    }
    return FProgramSearch::search(executable, QDir::currentPath(), path);
}

QString FProgramSettings::fileVersion() const {
    return versionOf(search().file);
}

QMap<QString, QString> FProgramSettings::argumentVersions(const QString& folder) const {
    const QDir ofRun(folder);
    QMap<QString, QString> versions;
    for (const QString& argument : arguments) {
        const QString path = QDir::cleanPath(ofRun.absoluteFilePath(argument));
        const bool isOfRun = path.startsWith(ofRun.absolutePath() + QLatin1Char('/'));
        const QString version = isOfRun ? QString() : versionOf(path);
        if (!version.isEmpty()) {
            versions.insert(argument, version);
        }
    }
    return versions;
}

// The system takes such a text up to that character.
FProgramFault FProgramSettings::faultOfNul() const {
    const auto hasNul = [](const QString& text) { return text.contains(QChar::Null); };
    const bool isArgument = std::any_of(arguments.begin(), arguments.end(), hasNul);
    const bool isVariable = std::any_of(environment.begin(), environment.end(), hasNul);
    if (!isArgument && !isVariable && !hasNul(executable)) {
        return {};
    }
    const QString what = isArgument   ? QStringLiteral("An argument of the program")
                         : isVariable ? QStringLiteral("A variable of the environment")
                                      : QStringLiteral("The name of the program");
    return {what + QStringLiteral(" contains NUL"), QStringLiteral("Remove that character")};
}

FProgramFault FProgramSettings::fault() const {
    if (executable.isEmpty()) {
        return {QStringLiteral("No program is given"), QStringLiteral("Set it with setExecutable")};
    }
    if (const FProgramFault nul = faultOfNul(); !nul.text.isEmpty()) {
        return nul;
    }
    if (FSafePath::leadsOut(standardInput)) {
        return {
            QStringLiteral("The file of the standard input, '%1', is outside the folder of the run").arg(standardInput),
            QStringLiteral("Choose a file inside it")};
    }
    return {};
}

FProcessSetup FProgramSettings::setupIn(const QString& folder) const {
    FProcessSetup setup;
    setup.workingFolder = folder;
    // The program starts in the folder of its run, but a relative path starts at the current folder.
    const bool isPath = executable.contains(QLatin1Char('/'));
    setup.program = isPath ? QFileInfo(executable).absoluteFilePath() : executable;
    setup.arguments = arguments;
    setup.environment = environment;
    setup.timeLimit = timeLimit;
    if (!standardInput.isEmpty()) {
        setup.standardInputFile = QDir::cleanPath(folder + QLatin1Char('/') + standardInput);
    }
    if (consoleFiles) {
        setup.standardOutputFile = outputFile();
        setup.standardErrorFile = errorFile();
    }
    return setup;
}
