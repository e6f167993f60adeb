// What a run needs, in load order, and the places of the window part in it.

#include "genericintegration/io/FGenIntReader.h"
#include "genericintegration/io/FGenIntWriter.h"
#include "genericintegration/setup/FAttribCmdSetAverageRows.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FConnectorClass.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntCheck.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/setup/FGenIntEditor.h"
#include "genericintegration/setup/FImportSoftwareConnector.h"
#include "genericintegration/setup/FPreviewCommands.h"
#include "genericintegration/setup/FResultsGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FInitPrototype.h"

namespace {

const FInitPrototypes<FEnum<GenIntAnchorOccurrence>, FGenIntResultsFileValue, FAttribCmdSetAverageRows, FGenIntReader,
                      FGenIntWriter, FGenIntCommandFile, FGenIntFile, FGenIntResultsFile, FImportSoftwareConnector,
                      FResultsGenInt, FConfigurationGenInt, FDefinitionGenInt, FGenIntComputation>
    models;
const FPrototypePlace editors("template editors");
const FInitPrototypes<FConnectorClass> connector;
const FPrototypePlace items("connector items");
const FInitPrototypes<FGenIntEditor, FPreviewCommands> commands;

const bool isChecked = FGenIntCheck::enable();

}  // namespace
