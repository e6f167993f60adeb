#include "merix/FApplication.h"

#include "host/core/FStandardOutput.h"
#include "merix/FCheckSubcommand.h"
#include "merix/FCommandLine.h"
#include "merix/FCommandsSubcommand.h"
#include "merix/FExitCode.h"
#include "merix/FExportSubcommand.h"
#include "merix/FGuiSubcommand.h"
#include "merix/FImportSubcommand.h"
#include "merix/FPluginLoader.h"
#include "merix/FReadSubcommand.h"
#include "merix/FRunSubcommand.h"
#include "merix/FScriptSubcommand.h"
#include "merix/FVersion.h"
#include "merix/FWriteSubcommand.h"

#include <QCoreApplication>

#include <memory>

namespace {

/** All subcommands, in the order of the help text. */
FCommandLine::Subcommands allSubcommands() {
    FCommandLine::Subcommands all;
    all.push_back(std::make_unique<FGuiSubcommand>());
    all.push_back(std::make_unique<FScriptSubcommand>());
    all.push_back(std::make_unique<FCheckSubcommand>());
    all.push_back(std::make_unique<FWriteSubcommand>());
    all.push_back(std::make_unique<FReadSubcommand>());
    all.push_back(std::make_unique<FRunSubcommand>());
    all.push_back(std::make_unique<FExportSubcommand>());
    all.push_back(std::make_unique<FImportSubcommand>());
    all.push_back(std::make_unique<FCommandsSubcommand>());
    return all;
}

}  // namespace

int FApplication::run(int argc, char** argv) {
    FStandardOutput::reserve();
    const FCommandLine::Subcommands subcommands = allSubcommands();
    const FCommandLine::Outcome outcome = FCommandLine::parse(argc, argv, subcommands);
    if (!outcome.chosen) {
        return outcome.exitCode;
    }
    const std::unique_ptr<QCoreApplication> application = outcome.chosen->makeApplication(argc, argv);
    if (!application) {
        return FExitCode::fileError;
    }
    QCoreApplication::setApplicationName(QStringLiteral("merix"));
    QCoreApplication::setApplicationVersion(QString::fromLatin1(FVersion::text));
    if (!FPluginLoader::loadAll()) {
        return FExitCode::fileError;
    }
    const int exitCode = outcome.chosen->run();
    return FStandardOutput::isGood() ? exitCode : FExitCode::fileError;
}
