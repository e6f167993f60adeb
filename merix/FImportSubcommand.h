#pragma once

#include "merix/FSubcommand.h"

/** `merix import FILE --into PROJECT`: imports a file into a project, which is created if there is none. */
class FImportSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "import"; }
    const char* description() const override { return "Imports the set-ups of an exchange file into a project."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    int importInto(const QString& project) const;

    std::string mFile;
    std::string mProject;
};
