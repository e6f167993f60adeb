#include "host/core/FNull.h"

FClassData FNull::mClass("FNull", &FBasicType::mClass);
