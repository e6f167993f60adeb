#include "host/core/FBool.h"
#include "host/core/FDocuArea.h"
#include "host/core/FEnumBase.h"
#include "host/core/FInitPrototype.h"
#include "host/core/FNull.h"
#include "host/core/FNumber.h"
#include "host/core/FObjectList.h"
#include "host/core/FScope.h"
#include "host/core/FString.h"
#include "host/core/FView.h"

namespace {

const FInitPrototypes<FObject, FBasicType, FNull, FDouble, FInteger, FUnsigned, FBool, FString, FFileName, FEnumBase,
                      FEnum<FDocuArea>, FObjectList, FManaged, FEntity, FScope, FView>
    types;

}  // namespace
