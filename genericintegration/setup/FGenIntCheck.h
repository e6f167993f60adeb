#pragma once

#include "host/run/FSetUpCheck.h"

/** The check of the plug-in's computations. */
class FGenIntCheck : public FSetUpCheck {
 public:
    Problems problems(const FExternComputation& computation, bool mayReadFiles) const override;
    Inputs inputs(const FExternComputation& computation) const override;
    Tables tables(const FExternComputation& computation) const override;
    Uses uses(const FDefinition& definition) const override;

    /** Registers the check. */
    static bool enable();
};
