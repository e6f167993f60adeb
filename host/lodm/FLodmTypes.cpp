#include "host/core/FInitPrototype.h"
#include "host/lodm/FConfigurationCustom.h"

namespace {

const FInitPrototypes<FDefinitionCustomBase, FDefinitionCustom, FConfigurationCustomBase, FConfigurationCustom> types;

}  // namespace
