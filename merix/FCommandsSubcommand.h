#pragma once

#include "merix/FSubcommand.h"

/** `merix commands [NAME] [--full] [--json]`: prints the reference of the commands. */
class FCommandsSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "commands"; }
    const char* description() const override { return "Prints the reference of all script commands."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    std::string mName;
    bool mFull = false;
    bool mJson = false;
};
