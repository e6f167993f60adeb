#include "host/core/FInitPrototype.h"
#include "host/script/FCreateCmd.h"
#include "host/script/FGlobalCommands.h"
#include "host/script/FMemberCmd.h"
#include "host/script/FOperatorCmd.h"

namespace {

const FInitPrototypes<FCmd, FMemberCmd, FAttribCmd, FCreateCmd, FCreateEntityCmd, FOperatorCmd, FListCmd,
                      FGlobalCommands, FMathCommands>
    types;

}  // namespace
