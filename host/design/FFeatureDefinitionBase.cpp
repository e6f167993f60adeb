#include "host/design/FFeatureDefinitionBase.h"

FClassData FFeatureDefinitionBase::mClass("FFeatureDefinitionBase", &FEntity::mClass);
