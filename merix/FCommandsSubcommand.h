#pragma once

#include <string>

namespace CLI {
class App;
}

/** `merix commands [CLASS] [--json]`: the reference of all commands. */
class FCommandsSubcommand {
 public:
    explicit FCommandsSubcommand(CLI::App& app);

    int run() const;

 private:
    std::string mClass;
    bool mJson = false;
};
