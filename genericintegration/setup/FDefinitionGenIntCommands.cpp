#include "genericintegration/setup/FDefinitionGenIntCommands.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "host/script/FCmdTable.h"

#include <algorithm>
#include <iterator>

namespace {

using Files = QList<FExpr<FGenIntFile>>;

/** Destroyed files can't be saved. */
Files liveFiles(const FDefinitionGenInt& definition) {
    Files live;
    const Files files = definition.getFiles();
    std::copy_if(files.begin(), files.end(), std::back_inserter(live),
                 [](const FExpr<FGenIntFile>& file) { return static_cast<bool>(file); });
    return live;
}

/** The attribute added last only saves and restores projects; users never see it. */
void keepForProjects(FCmdTable& attribute, const char* label) {
    attribute.attrName(label).readOnly().systemFlag(2).hidden().data();
}

}  // namespace

void definitionGenIntCommands(FCmdTable& table) {
    using F = FDefinitionGenInt;
    table.entityCreator(
        "genericIntegrationDefinition", +[](const FNewName& name) { return F::create(name.scope, name.name, {}); });
    keepForProjects(table.attribute<F>("setFiles", &F::setFiles, &liveFiles, {"files"}), "Template Files");
    keepForProjects(table.attribute<F>("setCurFile", &F::setCurFile, &F::getCurFile, {"currentFile"}), "Current File");
    keepForProjects(table.attribute<F>("setLastFile", &F::setLastFile, &F::getLastFile, {"lastFile"}), "Last File");
}
