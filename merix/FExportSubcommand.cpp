#include "merix/FExportSubcommand.h"

#include "host/lodm/FCustomComputation.h"
#include "merix/FExitCode.h"

std::vector<FSubcommand::Argument> FExportSubcommand::arguments() {
    return {mTarget.projectArgument(),
            {"--out FILE", "The file, in general with the ending .lodm", &mFile, true},
            {"--chain", "With the set-ups of all computations that it is linked with", &mChain},
            mTarget.computationArgument()};
}

int FExportSubcommand::run() const {
    const int exitCode = mTarget.open(FSetUpTarget::Access::Read);
    if (exitCode != FExitCode::done) {
        return exitCode;
    }
    const bool isWritten = mTarget.computation()->exportSetUp(QString::fromStdString(mFile), mChain);
    return isWritten ? FExitCode::done : FExitCode::fileError;
}
