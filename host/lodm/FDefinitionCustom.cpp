#include "host/lodm/FDefinitionCustom.h"

FClassData FDefinitionCustom::mClass("FDefinitionCustom", &FDefinitionCustomBase::mClass);
