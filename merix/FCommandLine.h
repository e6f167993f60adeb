#pragma once

#include "merix/FSubcommand.h"

#include <memory>

/** Reads the command line of the program. */
class FCommandLine {
 public:
    using Subcommands = std::vector<std::unique_ptr<FSubcommand>>;

    struct Outcome {
        const FSubcommand* chosen;  //!< has received its values; null if there is nothing to run
        int exitCode;               //!< of the program, if there is nothing to run
    };

    /** Finds the subcommand to run. Prints the help, the version or the error if there is none. */
    static Outcome parse(int argc, char** argv, const Subcommands& subcommands);
};
