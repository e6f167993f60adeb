#pragma once

#include "merix/FSubcommand.h"

/** `merix commands [CLASS] [--json]`: prints the reference of all commands. */
class FCommandsSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "commands"; }
    const char* description() const override { return "Prints the reference of all script commands."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    std::string mClass;
    bool mJson = false;
};
