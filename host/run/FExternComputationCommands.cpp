#include "host/run/FExternComputation.h"
#include "host/script/FCmdTable.h"

namespace {

using F = FExternComputation;

/** Presentation and copying of the setting that was added last. */
FCmdTable& setting(FCmdTable& row, const char* label) {
    return row.copied().attrName(label).category("Execution Settings");
}

QString faultOfTimeLimit(const double& seconds) {
    return seconds >= 0 ? QString()
                        : QStringLiteral("the time limit can't be %1 s; give a number from 0, where 0 means no limit")
                              .arg(seconds);
}

}  // namespace

/** A member of the settings, as a function on the computation. */
template <auto Member>
auto& FExternComputation::inProgram(FExternComputation& computation) {
    return computation.mProgram.*Member;
}

void FExternComputation::declareCommands(FCmdTable& table) {
    using S = FProgramSettings;
    setting(table.plain<F>("setExecutable", &inProgram<&S::executable>, {"program"}), "Executable")
        .attrRequiredCmd("true");
    setting(table.plain<F>("setArguments", &inProgram<&S::arguments>, {"arguments"}), "Arguments");
    setting(table.plain<F>("setTimeLimit", &inProgram<&S::timeLimit>, {"seconds"}), "Time Limit")
        .accepts(&faultOfTimeLimit);
    setting(table.plain<F>("setEnvironment", &inProgram<&S::environment>, {"variables"}), "Environment");
    setting(table.plain<F>("setStandardInput", &inProgram<&S::standardInput>, {"fileName"}), "Standard Input");
    setting(table.plain<F>("setConsoleFiles", &inProgram<&S::consoleFiles>, {"checked"}), "Console Files");
    table
        .member<F>(
            "run", +[](F& computation) { return computation.run(); })
        .unwrapped();
    table.member<F>("rereadResults", &F::rereadResults);
    table.member<F>("cancel", &F::cancel);
    table
        .member<F>(
            "getState", +[](const F& computation) { return computation.getLastRun().stateName(); })
        .query();
    table
        .member<F>(
            "getExitCode", +[](const F& computation) { return computation.getLastRun().exitCode; })
        .query();
    table.member<F>("getWorkingPath", &F::getWorkingPath).query();
}
