#include "host/core/FInitPrototype.h"
#include "host/run/FExternComputation.h"
#include "host/run/FResultsGeneric.h"
#include "host/run/FValueOrigin.h"

namespace {

const FInitPrototypes<FTableData, FValueOrigin, FResults, FComputationResults, FResultsGeneric, FExternComputation>
    types;

}  // namespace
