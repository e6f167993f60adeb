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

QString FProgramSearch::message() const {
    if (isFound()) {
        return QString();
    }
    if (program.isEmpty()) {
        return QStringLiteral("No program is given. Give its name or its path.");
    }
    if (QFileInfo(notExecutable).isDir()) {
        return QStringLiteral("'%1' is a folder, not a program. Give the path of a program in it.").arg(notExecutable);
    }
    if (!notExecutable.isEmpty()) {
        return QStringLiteral(
                   "The file '%1' is not executable. Make it executable (chmod +x), or choose another program.")
            .arg(notExecutable);
    }
    if (!place.isEmpty()) {
        return QStringLiteral("The program '%1' was not found: there is no file '%2'. Check the path.")
            .arg(program, place);
    }
    return QStringLiteral(
               "The program '%1' was not found in the folders of PATH: %2. Install it, or give its full path.")
        .arg(program, folders.join(QStringLiteral(", ")));
}
