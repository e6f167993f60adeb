// What a run needs, in load order.

#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FGenIntWriter.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FInitPrototype.h"

namespace {

const FInitPrototypes<FEnum<GenIntAnchorOccurrence>, FGenIntResultsFileValue, FGenIntReader, FGenIntWriter,
                      FGenIntCommandFile, FGenIntFile, FGenIntResultsFile, FConfigurationGenInt, FDefinitionGenInt>
    types;

}  // namespace
