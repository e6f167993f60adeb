#pragma once

#include <QCoreApplication>

#include <memory>
#include <string>
#include <variant>
#include <vector>

/**
 * A subcommand of the program: its name, the arguments it takes, and what it does. A new one is a class derived from
 * this one and a line in FApplication.cpp.
 */
class FSubcommand {
 public:
    /** An argument on the command line, and the member that receives its value. */
    struct Argument {
        /** A flag; a text; or a list: of the values of a repeated option, or for a position of all remaining words,
         *  including those that look like options. */
        using Value = std::variant<bool*, std::string*, std::vector<std::string>*>;

        const char* name;  //!< "FILE" for a position, "--json" for a flag, "--out DIR" for an option with a value
        const char* description;
        Value value;
        bool isRequired = false;
    };

    virtual ~FSubcommand() = default;

    virtual const char* name() const = 0;
    virtual const char* description() const = 0;
    /** The arguments in the order of the help text; positions are filled in this order too. */
    virtual std::vector<Argument> arguments() = 0;
    /** The application object of the program. Null, with a message, if it needs a display and there is none. */
    virtual std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) const {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    /** Does the work with the values received from the command line. Returns an exit code, see FExitCode. */
    virtual int run() const = 0;
};
