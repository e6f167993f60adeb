#include "merix/FRunSubcommand.h"

#include "host/core/FStandardOutput.h"
#include "host/lodm/FCustomComputation.h"
#include "host/run/FInterruptLine.h"
#include "host/run/FResultsGeneric.h"
#include "host/script/FProject.h"
#include "merix/FExitCode.h"
#include "merix/FTableOutput.h"

std::vector<FSubcommand::Argument> FRunSubcommand::arguments() {
    return {mTarget.projectArgument(),
            mTarget.setArgument(),
            {"--json", "As JSON", &mJson},
            {"--chain", "First runs the computations whose results it uses", &mChain},
            mTarget.computationArgument()};
}

int FRunSubcommand::run() const {
    FInterruptLine::install();
    // The values that were set hold for this call only.
    FProject::instance()->keepNoWork();
    const int exitCode = mTarget.open(FSetUpTarget::Access::Run);
    if (exitCode != FExitCode::done) {
        FProject::instance()->close(false);
        return exitCode;
    }
    FCustomComputation& computation = *mTarget.computation();
    if (!mChain) {
        mTarget.readSuppliers();
    }
    const bool isDone = mChain ? computation.runWithSuppliers() : computation.run();
    auto* results = dynamic_cast<FResultsGeneric*>(computation.getCurrentResults().ptr());
    if (isDone && results && results->prepareResults()) {
        FStandardOutput::write(FTableOutput::of(*results, mJson ? FTableOutput::Form::Json : FTableOutput::Form::Text));
    }
    FProject::instance()->close(false);
    return isDone ? FExitCode::done : FExitCode::failed;
}
