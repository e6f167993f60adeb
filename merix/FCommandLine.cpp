#include "merix/FCommandLine.h"

#include "host/core/FStandardOutput.h"
#include "merix/FExitCode.h"
#include "merix/FVersion.h"

#include <QByteArray>

#include <algorithm>

// The library is slow to compile: no other file includes it.
#include <CLI/CLI.hpp>

#include <sstream>

namespace {

/** The error in the command line. CLI11 reports a word that is no subcommand as a missing subcommand. */
std::string faultOf(const CLI::App* app, const CLI::Error& error) {
    const bool isChosen = !app->get_subcommands().empty();
    const std::vector<std::string> unknown = isChosen ? std::vector<std::string>() : app->remaining();
    return unknown.empty() ? error.what() : "\"" + unknown.front() + "\" is neither a subcommand nor an option";
}

/** Adds an argument to a command of CLI11, depending on the type of its value. */
struct Adder {
    CLI::App* command;
    const FSubcommand::Argument& argument;

    CLI::Option* operator()(bool* flag) const { return command->add_flag(argument.name, *flag, argument.description); }
    CLI::Option* operator()(std::string* text) const { return option(*text); }
    CLI::Option* operator()(std::vector<std::string>* words) const {
        if (isOption()) {
            // One value each time, so that positions can follow.
            return option(*words)->allow_extra_args(false)->take_all();
        }
        command->positionals_at_end();
        return option(*words);
    }

    bool isOption() const { return argument.name[0] == '-'; }
    template <class Value>
    CLI::Option* option(Value& value) const {
        const std::string name = argument.name;
        const std::size_t blank = name.find(' ');
        CLI::Option* added = command->add_option(name.substr(0, blank), value, argument.description);
        return blank == std::string::npos ? added : added->type_name(name.substr(blank + 1));
    }
};

CLI::App* add(CLI::App& app, FSubcommand& subcommand) {
    CLI::App* command = app.add_subcommand(subcommand.name(), subcommand.description());
    for (const FSubcommand::Argument& argument : subcommand.arguments()) {
        std::visit(Adder{command, argument}, argument.value)->required(argument.isRequired);
    }
    return command;
}

void describe(CLI::App& app) {
    app.set_version_flag("--version", std::string("merix ") + FVersion::text);
    app.require_subcommand(1);
    app.footer("Exit codes: 0 done, 1 the work failed, 2 the call was wrong, 3 a file can't be read or written.");
    app.failure_message([](const CLI::App* called, const CLI::Error& error) {
        return "error: merix: " + faultOf(called, error) +
               "\nTo execute a script: \"merix script FILE\"; for everything else: \"merix --help\".\n";
    });
}

}  // namespace

FCommandLine::Outcome FCommandLine::parse(int argc, char** argv, const Subcommands& subcommands) {
    CLI::App app{"merix couples simulation programs with parametric designs.", "merix"};
    describe(app);
    std::vector<CLI::App*> commands;
    for (const auto& subcommand : subcommands) {
        commands.push_back(add(app, *subcommand));
    }
    try {
        // "merix FILE.mrx", as a desktop calls the program for a file.
        const bool isProject = argc > 1 && QByteArray(argv[1]).endsWith(".mrx");
        std::vector<std::string> words(argv + 1, argv + argc);
        if (isProject) {
            words.insert(words.begin(), "gui");
        }
        std::reverse(words.begin(), words.end());
        app.parse(words);
    } catch (const CLI::ParseError& error) {
        std::ostringstream help;
        const bool isHelp = app.exit(error, help, std::cerr) == 0;
        const bool isWritten = FStandardOutput::write(QString::fromStdString(help.str()));
        return {nullptr, !isHelp ? FExitCode::wrongCall : isWritten ? FExitCode::done : FExitCode::fileError};
    }
    for (std::size_t i = 0; i < commands.size(); ++i) {
        if (commands[i]->parsed()) {
            return {subcommands[i].get(), FExitCode::done};
        }
    }
    return {nullptr, FExitCode::wrongCall};
}
