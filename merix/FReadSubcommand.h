#pragma once

#include "merix/FSetUpTarget.h"

class QDir;

/** `merix read PROJECT --dir DIR`: prints the values of the output files in a folder, which stays as it is. */
class FReadSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "read"; }
    const char* description() const override { return "Prints the values of the output files in a folder."; }
    std::vector<Argument> arguments() override;
    int run() const override;

 private:
    bool hasFiles(const QDir& folder) const;

    FSetUpTarget mTarget;
    std::string mFolder;
    bool mCsv = false;
    bool mJson = false;
    bool mExplain = false;
};
