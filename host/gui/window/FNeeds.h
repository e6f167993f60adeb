#pragma once

#include "host/gui/window/FSituation.h"

/** What actions need: each function gives the reason, for the user, why an action isn't possible now, or null. */
namespace FNeeds {

const char* project(const FSituation& now);
const char* computation(const FSituation& now);
const char* idleComputation(const FSituation& now);
const char* output(const FSituation& now);
const char* results(const FSituation& now);
const char* run(const FSituation& now);
const char* doneStep(const FSituation& now);
const char* undoneStep(const FSituation& now);
const char* oneObject(const FSituation& now);
const char* objects(const FSituation& now);
const char* assistant(const FSituation& now);

}  // namespace FNeeds
