#include "host/core/FScope.h"

FClassData FEntity::mClass("FEntity", &FManaged::mClass);
FClassData FScope::mClass("FScope", &FEntity::mClass);
