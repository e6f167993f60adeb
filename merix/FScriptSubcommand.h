#pragma once

#include "merix/FSubcommand.h"

/** `merix script [--strict] FILE [ARGUMENTS]`: executes a script. */
class FScriptSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "script"; }
    const char* description() const override { return "Executes a script; \"-\" reads it from the standard input."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    std::string mFile;
    std::vector<std::string> mArguments;
    bool mStrict = false;
};
