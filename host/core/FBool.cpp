#include "host/core/FBool.h"

FClassData FBool::mClass("FBool", &FBasicType::mClass);
