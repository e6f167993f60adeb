#include "merix/FApplication.h"

#include "merix/FCommandsSubcommand.h"
#include "merix/FExitCode.h"
#include "merix/FPluginLoader.h"
#include "merix/FScriptSubcommand.h"
#include "merix/FVersion.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

#include <string>
#include <vector>

namespace {

/** What was wrong with the call. CLI11 calls a word that is no subcommand a missing subcommand. */
std::string faultOf(const CLI::App* app, const CLI::Error& error) {
    const bool isChosen = !app->get_subcommands().empty();
    const std::vector<std::string> unknown = isChosen ? std::vector<std::string>() : app->remaining();
    return unknown.empty() ? error.what() : "\"" + unknown.front() + "\" is neither a subcommand nor an option";
}

}  // namespace

int FApplication::run(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("merix"));

    CLI::App app{"merix couples simulation programs with parametric designs.", "merix"};
    app.set_version_flag("--version", std::string("merix ") + FVersion::text);
    app.require_subcommand(1);
    app.footer("Exit codes: 0 done, 1 the work failed, 2 the call was wrong, 3 a file can't be read or written.");
    app.failure_message([](const CLI::App* called, const CLI::Error& error) {
        return "error: merix: " + faultOf(called, error) +
               "\nA script is carried out by \"merix script FILE\"; \"merix --help\" tells what else there is.\n";
    });
    FScriptSubcommand script(app);
    FCommandsSubcommand commands(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? FExitCode::done : FExitCode::wrongCall;
    }
    if (!FPluginLoader::loadAll()) {
        return FExitCode::fileError;
    }
    return script.isChosen() ? script.run() : commands.run();
}
