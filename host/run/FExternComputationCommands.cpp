#include "host/run/FExternComputationCommands.h"

#include "host/run/FExternComputation.h"
#include "host/script/FCmdTable.h"

namespace {

/** How the setting added last is shown and kept. */
FCmdTable& keep(FCmdTable& setting, const char* label) {
    return setting.attrName(label).category("Execution Settings").data();
}

void settings(FCmdTable& table) {
    using F = FExternComputation;
    keep(table.attribute<F>("setExecutable", &F::setExecutable, &F::getExecutable, {"program"}), "Executable")
        .attrRequiredCmd("true");
    keep(table.attribute<F>("setArguments", &F::setArguments, &F::getArguments, {"arguments"}), "Arguments");
    keep(table.attribute<F>("setTimeLimit", &F::setTimeLimit, &F::getTimeLimit, {"seconds"}), "Time Limit");
    keep(table.attribute<F>("setEnvironment", &F::setEnvironment, &F::getEnvironment, {"variables"}), "Environment");
    keep(table.attribute<F>("setStandardInput", &F::setStandardInput, &F::getStandardInput, {"fileName"}),
         "Standard Input");
    keep(table.attribute<F>("setConsoleFiles", &F::setConsoleFiles, &F::getConsoleFiles, {"checked"}), "Console Files");
}

}  // namespace

void externComputationCommands(FCmdTable& table) {
    using F = FExternComputation;
    settings(table);
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
