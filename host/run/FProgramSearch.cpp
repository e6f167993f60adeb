#include "host/run/FProgramSearch.h"

#include <QDir>
#include <QFileInfo>

namespace {

// True if the program was found.
bool look(FProgramSearch& search, const QString& file) {
    const QFileInfo info(file);
    if (info.isFile() && info.isExecutable()) {
        search.file = file;
    } else if (info.exists() && search.notExecutable.isEmpty()) {
        search.notExecutable = file;
    }
    return search.isFound();
}

/** For a program that was given with its arguments; else empty. */
QString argumentHint(const QString& program) {
    const QStringList words = program.simplified().split(QLatin1Char(' '));
    if (words.size() < 2) {
        return {};
    }
    const QStringList arguments = words.mid(1);
    return QStringLiteral("Arguments belong into setArguments: setExecutable(\"%1\"), setArguments([\"%2\"])")
        .arg(words.first(), arguments.join(QStringLiteral("\", \"")));
}

}  // namespace

FProgramSearch FProgramSearch::search(const QString& program, const QString& workingFolder, const QString& path) {
    FProgramSearch result;
    result.program = program;
    if (program.contains('/')) {
        result.place = QDir(workingFolder).absoluteFilePath(program);
        look(result, result.place);
        return result;
    }
    if (program.isEmpty()) {
        return result;
    }
    for (const QString& entry : path.split(':')) {
        const QString folder = QDir(workingFolder).absoluteFilePath(entry);
        result.folders.append(folder);
        if (look(result, QDir(folder).absoluteFilePath(program))) {
            break;
        }
    }
    return result;
}

FProgramFault FProgramSearch::fault(bool withFolders) const {
    if (isFound()) {
        return {};
    }
    if (program.isEmpty()) {
        return {QStringLiteral("No program is given"), QStringLiteral("Give its name or its path")};
    }
    if (QFileInfo(notExecutable).isDir()) {
        return {QStringLiteral("'%1' is a folder, not a program").arg(notExecutable),
                QStringLiteral("Give the path of a program in it")};
    }
    if (!notExecutable.isEmpty()) {
        return {QStringLiteral("The file '%1' is not executable").arg(notExecutable),
                QStringLiteral("Make it executable (chmod +x), or choose another program")};
    }
    const QString hint = argumentHint(program);
    if (!place.isEmpty()) {
        return {QStringLiteral("The program '%1' was not found: there is no file '%2'").arg(program, place),
                hint.isEmpty() ? QStringLiteral("Check the path") : hint};
    }
    if (!hint.isEmpty()) {
        return {QStringLiteral("The program '%1' was not found").arg(program), hint};
    }
    return {QStringLiteral("The program '%1' was not found in the folders of PATH%2")
                .arg(program, withFolders ? QStringLiteral(": ") + folders.join(QStringLiteral(", ")) : QString()),
            QStringLiteral("Install it, or give its full path")};
}
