#include "genericintegration/setup/FGenIntCheck.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FProblems.h"

#include <optional>

namespace {

/** The problems of a computation of this plug-in; nothing for another one. */
std::optional<FProblems> coreOf(const FExternComputation& computation, bool mayReadFiles) {
    const auto* own = dynamic_cast<const FGenIntComputation*>(&computation);
    if (!own) {
        return std::nullopt;
    }
    const FConfigurationCustom* configuration = own->getConfiguration().ptr();
    const FDefinition* definition = configuration ? configuration->getDefinition().ptr() : nullptr;
    return FProblems(own, configuration, dynamic_cast<const FDefinitionGenInt*>(definition), mayReadFiles);
}

}  // namespace

FSetUpCheck::Problems FGenIntCheck::problems(const FExternComputation& computation, bool mayReadFiles) const {
    std::optional<FProblems> problems = coreOf(computation, mayReadFiles);
    return problems ? problems->find() : Problems();
}

FSetUpCheck::Inputs FGenIntCheck::inputs(const FExternComputation& computation) const {
    std::optional<FProblems> problems = coreOf(computation, false);
    return problems ? problems->inputs() : Inputs();
}

bool FGenIntCheck::enable() {
    static const FGenIntCheck check;
    add(&check);
    return true;
}
