#include "host/design/FDesign.h"

FClassData FDesign::mClass("FDesign", &FEntity::mClass);
