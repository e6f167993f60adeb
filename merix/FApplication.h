#pragma once

/** The program: reads the command line and carries out one subcommand. */
class FApplication {
 public:
    /** The exit code: see FExitCode. */
    int run(int argc, char** argv);
};
