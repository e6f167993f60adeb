#include "host/core/FInitPrototype.h"
#include "host/lodm/FCustomComputation.h"

namespace {

const FInitPrototypes<FDefinitionCustomBase, FDefinitionCustom, FConfigurationCustomBase, FConfigurationCustom,
                      FCustomComputation>
    types;

}  // namespace
