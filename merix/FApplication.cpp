#include "merix/FApplication.h"

#include "merix/FCommandsSubcommand.h"
#include "merix/FExitCode.h"
#include "merix/FPluginLoader.h"
#include "merix/FScriptSubcommand.h"
#include "merix/FVersion.h"

#include <CLI/CLI.hpp>
#include <QCoreApplication>

int FApplication::run(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("merix"));

    CLI::App app{"merix couples simulation programs with parametric designs.", "merix"};
    app.set_version_flag("--version", std::string("merix ") + FVersion::text);
    app.require_subcommand(1);
    app.footer("Exit codes: 0 done, 1 the work failed, 2 the call was wrong, 3 a file can't be read or written.");
    app.failure_message([](const CLI::App*, const CLI::Error& error) {
        return std::string("error: merix: ") + error.what() +
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
