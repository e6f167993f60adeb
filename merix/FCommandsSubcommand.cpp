#include "merix/FCommandsSubcommand.h"

#include "host/core/FLogMsg.h"
#include "host/script/FCmdReference.h"
#include "merix/FExitCode.h"

#include <CLI/CLI.hpp>

#include <iostream>

FCommandsSubcommand::FCommandsSubcommand(CLI::App& app) {
    CLI::App* command = app.add_subcommand("commands", "Prints the reference of all script commands.");
    command->add_option("CLASS", mClass, "Only the commands on objects of this class; \"global\" for functions");
    command->add_flag("--json", mJson, "As JSON");
}

int FCommandsSubcommand::run() const {
    const QString className = QString::fromStdString(mClass);
    const FCmdReference reference(className);
    if (reference.isEmpty()) {
        FLogMsg::error(QStringLiteral("merix"), reference.unknownClass());
        return FExitCode::wrongCall;
    }
    std::cout << (mJson ? reference.toJson() : reference.toText()).toStdString();
    return FExitCode::done;
}
