#include "genericintegration/setup/FGenIntCheck.h"

#include "genericintegration/io/FTemplateValues.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FEntryUses.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FProblems.h"
#include "genericintegration/templates/FGenIntResultsFile.h"

#include <optional>

namespace {

const FDefinitionGenInt* definitionOf(const FExternComputation& computation) {
    const auto* own = dynamic_cast<const FGenIntComputation*>(&computation);
    return own ? own->definition() : nullptr;
}

/** The problems of a computation of this plug-in; nothing for another one. */
std::optional<FProblems> coreOf(const FExternComputation& computation, bool mayReadFiles) {
    const auto* own = dynamic_cast<const FGenIntComputation*>(&computation);
    if (!own) {
        return std::nullopt;
    }
    return FProblems(own, own->getConfiguration().ptr(), own->definition(), mayReadFiles);
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

FSetUpCheck::Tables FGenIntCheck::tables(const FExternComputation& computation) const {
    Tables tables;
    const FDefinitionGenInt* definition = definitionOf(computation);
    const QList<FExpr<FGenIntFile>> files = definition ? definition->getResultsFiles() : QList<FExpr<FGenIntFile>>();
    for (const FExpr<FGenIntResultsFile>& file : FGenIntResultsFile::among(files)) {
        tables.append({file->getFileName(), FTemplateValues::namesOf(*file.ptr())});
    }
    return tables;
}

FSetUpCheck::Uses FGenIntCheck::uses(const FDefinition& definition) const {
    const auto* own = dynamic_cast<const FDefinitionGenInt*>(&definition);
    return own ? FEntryUses(*own).find() : Uses();
}

bool FGenIntCheck::enable() {
    static const FGenIntCheck check;
    add(&check);
    return true;
}
