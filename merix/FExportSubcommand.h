#pragma once

#include "merix/FSetUpTarget.h"

/** `merix export PROJECT --out FILE`: writes the set-up of a computation, or the chain that it belongs to, to a file.
 */
class FExportSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "export"; }
    const char* description() const override { return "Writes a set-up to an exchange file, for another project."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    FSetUpTarget mTarget;
    std::string mFile;
    bool mChain = false;
};
