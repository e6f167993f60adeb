#include "merix/FWriteSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/core/FStandardOutput.h"
#include "host/lodm/FCustomComputation.h"
#include "merix/FExitCode.h"

#include <QDir>

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
    if (!folder.mkpath(QStringLiteral("."))) {
        FLogMsg::error(QStringLiteral("merix"), QStringLiteral("can't create the folder \"%1\"").arg(folder.path()),
                       QStringLiteral("Give another one with --out"));
        return FExitCode::fileError;
    }
    const FCustomComputation& computation = *mTarget.computation();
    FSetUpReport().log(FSetUpCheck::problemsOf(computation, true));
    if (!computation.writeInput(folder.path() + QLatin1Char('/'))) {
        return FExitCode::failed;
    }
    int notReplaced = 0;
    for (const FSetUpInput& input : FSetUpCheck::inputsOf(computation)) {
        notReplaced += input.notReplaced;
        FStandardOutput::write(QStringLiteral("%1: %2 tags replaced, %3 not replaced\n")
                                   .arg(QDir::cleanPath(folder.path() + QLatin1Char('/') + input.file))
                                   .arg(input.replaced)
                                   .arg(input.notReplaced));
    }
    return notReplaced > 0 ? FExitCode::failed : FExitCode::done;
}
