#include "host/core/FNumberText.h"
#include "host/run/FExternComputation.h"
#include "host/script/FCmdTable.h"

#include <cmath>

namespace {

using F = FExternComputation;

/** Presentation and copying of the setting that was added last. */
FCmdTable& setting(FCmdTable& row, const char* label) {
    return row.copied().attrName(label).category("Execution Settings");
}

QString faultOfTimeLimit(const double& seconds) {
    // The other zero would be saved with its sign.
    const bool isValid = seconds >= 0 && !std::signbit(seconds);
    return isValid ? QString()
                   : QStringLiteral("the time limit can't be %1 s; give a number from 0, where 0 means no limit")
                         .arg(numberText(seconds));
}

}  // namespace

/** A member of the settings, as a function on the computation. */
template <auto Member>
auto& FExternComputation::inProgram(FExternComputation& computation) {
    return computation.mProgram.*Member;
}

/** A member of the rules, as a function on the computation. */
template <auto Member>
auto& FExternComputation::inRules(FExternComputation& computation) {
    return computation.mRules.*Member;
}

void FExternComputation::declareRules(FCmdTable& table) {
    using S = FSuccessRules;
    const auto rule = [](FCmdTable& row, const char* label) -> FCmdTable& {
        return row.copied().attrName(label).category("Success");
    };
    rule(table.plain<F>("setAllowedExitCodes", &inRules<&S::exitCodes>, {"codes"}), "Allowed Exit Codes")
        .accepts(&S::faultOfExitCodes);
    rule(table.plain<F>("setRequiredTexts", &inRules<&S::requiredTexts>, {"texts"}), "Required Texts")
        .accepts(&S::faultOfTexts);
    rule(table.plain<F>("setForbiddenTexts", &inRules<&S::forbiddenTexts>, {"texts"}), "Forbidden Texts")
        .accepts(&S::faultOfTexts);
    rule(table.plain<F>("setOptionalFiles", &inRules<&S::optionalFiles>, {"files"}), "Optional Files")
        .accepts(&S::faultOfFiles);
    rule(table.plain<F>("setRequiredValues", &inRules<&S::requiredValues>, {"values"}), "Required Values");
    rule(table.plain<F>("setSuspiciousNumbers", &inRules<&S::suspiciousNumbers>, {"treatment"}), "Suspicious Numbers")
        .accepts(&S::faultOfTreatment);
    rule(table.plain<F>("setMissingAnchors", &inRules<&S::missingAnchors>, {"treatment"}), "Missing Anchors")
        .accepts(&S::faultOfTreatment);
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
    table.attribute<F>("setDesign", &F::setDesign, &F::getDesign, {"design"})
        .attrName("Design")
        .category("Execution Settings")
        .data();
    declareRules(table);
    table
        .member<F>("run",
                   +[](F& computation, bool suppliersFirst) {
                       return suppliersFirst ? computation.runWithSuppliers() : computation.run();
                   },
                   {"suppliersFirst=false"})
        .unwrapped()
        .outcome();
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
    table
        .member<F>(
            "getFailureReason",
            +[](const F& computation) {
                const FRunRecord& run = computation.getLastRun();
                return run.cause == FRunRecord::Cause::None ? QString() : run.message;
            })
        .query();
    table.member<F>("getWorkingPath", &F::getWorkingPath).query();
}
