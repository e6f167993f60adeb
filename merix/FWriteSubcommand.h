#pragma once

#include "merix/FSetUpTarget.h"

/** `merix write PROJECT [--set ENTRY=VALUE]… --out DIR`: writes the input files into a folder, without a run. */
class FWriteSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "write"; }
    const char* description() const override { return "Writes the input files of a run into a folder."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    FSetUpTarget mTarget;
    std::string mFolder;
};
