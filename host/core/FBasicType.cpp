#include "host/core/FBasicType.h"

FClassData FBasicType::mClass("FBasicType", &FObject::mClass);
