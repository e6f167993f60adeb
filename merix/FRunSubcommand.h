#pragma once

#include "merix/FSetUpTarget.h"

/** `merix run PROJECT [--set ENTRY=VALUE]… [--chain]`: runs the computation and prints the values. */
class FRunSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "run"; }
    const char* description() const override { return "Runs the computation of a project, and prints the values."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    FSetUpTarget mTarget;
    bool mJson = false;
    bool mChain = false;
};
