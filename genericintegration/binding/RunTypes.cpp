// What a run needs, in load order.

#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FInitPrototype.h"

namespace {

const FInitPrototypes<FEnum<GenIntAnchorOccurrence>, FGenIntResultsFileValue, FGenIntCommandFile, FGenIntFile,
                      FGenIntResultsFile>
    types;

}  // namespace
