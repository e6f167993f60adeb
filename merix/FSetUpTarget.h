#pragma once

#include "merix/FSubcommand.h"

#include <QStringList>

class FCustomComputation;
class FEntry;

/** The computation that a subcommand works on: one of a project, with the values that options set. */
class FSetUpTarget {
 public:
    enum class Access {
        Read,  //!< nothing is written beside the project
        Run,   //!< the project is opened as a script opens it
    };

    FSubcommand::Argument projectArgument() { return {"PROJECT", "The project", &mProject, true}; }
    FSubcommand::Argument setArgument() {
        return {"--set ENTRY=VALUE", "Sets the value of an entry for this call; can be repeated", &mValues};
    }
    FSubcommand::Argument computationArgument() {
        return {"--computation NAME", "The computation, if the project has several", &mName};
    }

    /** Opens the project, finds the computation and sets the values. Returns an exit code, with a message for others
     *  than FExitCode::done. */
    int open(Access access) const;
    /** The computation; null before a successful `open`. */
    FCustomComputation* computation() const { return mpComputation; }

    /** Opens a project; an exit code as `open`. */
    static int openProject(const QString& path, Access access);
    static QStringList computationNames();
    /** The computation of that name, or without a name the only one. Null, with a message, if there is none. */
    static FCustomComputation* find(const QString& name);

 private:
    bool set(const QString& assignment) const;

    std::string mProject;
    std::string mName;
    std::vector<std::string> mValues;
    mutable FCustomComputation* mpComputation = nullptr;
};
