#pragma once

#include "host/run/FSetUpCheck.h"
#include "merix/FSubcommand.h"

/**
 * `merix check PROJECT|SCRIPT [--json]`: reports what is wrong with set-ups before they are run. A script is executed
 * with each run and re-read replaced by the check. Nothing is written to disk.
 */
class FCheckSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "check"; }
    const char* description() const override { return "Reports what is wrong with a set-up, without a run."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    int checkProject(const QString& path, FSetUpCheck::Problems& problems) const;
    int checkScript(const QString& path, FSetUpCheck::Problems& problems) const;

    std::string mFile;
    std::string mComputation;
    std::vector<std::string> mArguments;
    bool mJson = false;
};
