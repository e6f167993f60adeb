#pragma once

#include "host/core/FClass.h"

/** Carries the global command that tries the marks of a result template on its sample. */
class FPreviewCommands : public FClass<FPreviewCommands, FObject> {
 public:
    static FClassData mClass;
};
