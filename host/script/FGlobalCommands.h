#pragma once

#include "host/core/FClass.h"

/** The receiver class of commands without a receiver: what scripts call like functions. */
class FGlobalCommands : public FClass<FGlobalCommands, FObject> {
 public:
    static FClassData mClass;
};

/** The functions of calculations. */
class FMathCommands : public FClass<FMathCommands, FObject> {
 public:
    static FClassData mClass;
};
