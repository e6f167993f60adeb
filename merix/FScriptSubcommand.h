#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

/** `merix script FILE [ARGUMENTS]`: carries out a script. */
class FScriptSubcommand {
 public:
    explicit FScriptSubcommand(CLI::App& app);

    bool isChosen() const;
    int run() const;

 private:
    CLI::App* mpCommand;
    std::string mFile;
    std::vector<std::string> mArguments;
};
