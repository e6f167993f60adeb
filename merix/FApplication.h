#pragma once

/** The program: reads the command line, loads the plug-ins and runs the chosen subcommand. */
class FApplication {
 public:
    /** Returns the exit code, see FExitCode. */
    int run(int argc, char** argv);
};
