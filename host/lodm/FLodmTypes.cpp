#include "host/core/FInitPrototype.h"
#include "host/lodm/FCustomComputation.h"
#include "host/lodm/FImport.h"

namespace {

const FInitPrototypes<FDefinitionCustomBase, FDefinitionCustom, FConfigurationCustomBase, FConfigurationCustom,
                      FCustomComputation, FImport>
    types;

}  // namespace
