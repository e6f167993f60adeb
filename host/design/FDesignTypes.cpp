#include "host/core/FInitPrototype.h"
#include "host/design/FConfiguration.h"
#include "host/design/FCurve.h"
#include "host/design/FDesign.h"
#include "host/design/FEntityGroup.h"
#include "host/design/FEntryDef.h"
#include "host/design/FFeatureDefinition.h"
#include "host/design/FFeatureMember.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FParameter.h"
#include "host/design/FPoint.h"
#include "host/design/FResultsFileName.h"
#include "host/design/FTriangles.h"

namespace {

const FInitPrototypes<FDesign, FParameter, FPoint, FGeometryFile, FCurve, FTriangles, FEntityGroup,
                      FFeatureDefinitionBase, FFeatureDefinition, FFeatureMember, FFileReference, FInputFile,
                      FResultsFileName, FGeometryExport, FEntryBase, FEntryDef, FEntry, FDefinitionBase, FDefinition,
                      FConfiguration>
    types;

}  // namespace
