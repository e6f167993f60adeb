#pragma once

#include "merix/FSubcommand.h"

/**
 * `merix gui [PROJECT] [--script FILE] [--show WHAT]… [--screenshot FILE --size WxH]`: opens the window.
 * `merix FILE.mrx` does the same.
 */
class FGuiSubcommand : public FSubcommand {
 public:
    const char* name() const override { return "gui"; }
    const char* description() const override { return "Opens the window of the program."; }
    std::vector<Argument> arguments() override;
    std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) const override;
    int run() const override;

 private:
    std::string mProject;
    std::string mScript;
    std::vector<std::string> mShown;
    std::string mScreenshot;
    std::string mSize;
};
