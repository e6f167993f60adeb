#include "merix/FWriteSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/core/FStandardOutput.h"
#include "host/lodm/FCustomComputation.h"
#include "merix/FExitCode.h"

#include <QDir>
#include <QFile>

#include <filesystem>
#include <system_error>

std::vector<FSubcommand::Argument> FWriteSubcommand::arguments() {
    return {mTarget.projectArgument(),
            mTarget.setArgument(),
            {"--out DIR", "The folder for the files; it is created if it doesn't exist", &mFolder, true},
            mTarget.computationArgument()};
}

int FWriteSubcommand::run() const {
    const int exitCode = mTarget.open(FSetUpTarget::Access::Read);
    if (exitCode != FExitCode::done) {
        return exitCode;
    }
    const QDir folder(QDir(QString::fromStdString(mFolder)).absolutePath());
    std::error_code fault;
    std::filesystem::create_directories(QFile::encodeName(folder.path()).toStdString(), fault);
    if (fault) {
        FLogMsg::error(QStringLiteral("merix"),
                       QStringLiteral("can't create the folder \"%1\": %2")
                           .arg(folder.path(), QString::fromStdString(fault.message())),
                       QStringLiteral("Give another one with --out"));
        return FExitCode::fileError;
    }
    mTarget.readSuppliers();
    const FCustomComputation& computation = *mTarget.computation();
    FSetUpReport().log(FSetUpCheck::problemsOf(computation, true));
    if (!computation.writeInput(folder.path() + QLatin1Char('/'))) {
        return FExitCode::failed;
    }
    int notReplaced = 0;
    for (const FSetUpInput& input : FSetUpCheck::inputsOf(computation)) {
        notReplaced += input.notReplaced;
        FStandardOutput::write(QStringLiteral("%1: %2 %3 replaced, %4 not replaced\n")
                                   .arg(QDir::cleanPath(folder.path() + QLatin1Char('/') + input.file),
                                        QString::number(input.replaced),
                                        input.replaced == 1 ? QStringLiteral("tag") : QStringLiteral("tags"),
                                        QString::number(input.notReplaced)));
    }
    return notReplaced > 0 ? FExitCode::failed : FExitCode::done;
}
