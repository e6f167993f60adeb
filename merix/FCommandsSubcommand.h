#pragma once

#include <string>

namespace CLI {
class App;
}

/** `merix commands [CLASS] [--json]`: the reference of all commands. */
class FCommandsSubcommand {
 public:
    explicit FCommandsSubcommand(CLI::App& app);

    bool isChosen() const;
    int run() const;

 private:
    CLI::App* mpCommand;
    std::string mClass;
    bool mJson = false;
};
