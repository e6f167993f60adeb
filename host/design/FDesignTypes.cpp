#include "host/core/FInitPrototype.h"
#include "host/design/FConfiguration.h"
#include "host/design/FDesign.h"
#include "host/design/FEntryDef.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FParameter.h"
#include "host/design/FResultsFileName.h"

namespace {

const FInitPrototypes<FDesign, FParameter, FFileReference, FInputFile, FResultsFileName, FGeometryExport, FEntryBase,
                      FEntryDef, FEntry, FDefinitionBase, FDefinition, FConfiguration>
    types;

}  // namespace
