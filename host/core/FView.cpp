#include "host/core/FView.h"

FClassData FView::mClass("FView", &FManaged::mClass);
bool FView::mInitPrototype = false;
