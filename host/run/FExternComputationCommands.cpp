#include "host/run/FExternComputationCommands.h"

#include "host/run/FExternComputation.h"
#include "host/script/FCmdTable.h"

namespace {

void attributes(FCmdTable& table) {
    using F = FExternComputation;
    const char* const category = "Execution Settings";
    table.attribute<F>("setExecutable", &F::setExecutable, &F::getExecutable, {"program"})
        .attrName("Executable")
        .category(category)
        .attrRequiredCmd("true")
        .data();
    table.attribute<F>("setArguments", &F::setArguments, &F::getArguments, {"arguments"})
        .attrName("Arguments")
        .category(category)
        .data();
    table.attribute<F>("setTimeLimit", &F::setTimeLimit, &F::getTimeLimit, {"seconds"})
        .attrName("Time Limit")
        .category(category)
        .data();
    table.attribute<F>("setEnvironment", &F::setEnvironment, &F::getEnvironment, {"variables"})
        .attrName("Environment")
        .category(category)
        .data();
    table.attribute<F>("setStandardInput", &F::setStandardInput, &F::getStandardInput, {"fileName"})
        .attrName("Standard Input")
        .category(category)
        .data();
    table.attribute<F>("setConsoleFiles", &F::setConsoleFiles, &F::getConsoleFiles, {"checked"})
        .attrName("Console Files")
        .category(category)
        .data();
}

}  // namespace

void externComputationCommands(FCmdTable& table) {
    using F = FExternComputation;
    attributes(table);
    table
        .member<F>(
            "run", +[](F& computation) { return computation.run(); })
        .unwrapped();
    table.member<F>("rereadResults", &F::rereadResults).unwrapped();
    table.member<F>("cancel", &F::cancel).unwrapped();
    table.member<F>("getState", &F::getState).query();
    table.member<F>("getExitCode", &F::getExitCode).query();
    table.member<F>("getWorkingPath", &F::getWorkingPath).query();
}
