#include "host/core/FInitPrototype.h"
#include "host/run/FExternComputation.h"
#include "host/run/FResultsGeneric.h"

namespace {

const FInitPrototypes<FTableData, FResults, FComputationResults, FResultsGeneric, FExternComputation> types;

}  // namespace
