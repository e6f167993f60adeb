#pragma once

#include "merix/FSubcommand.h"

#include <QList>
#include <QStringList>

class FConfigurationCustom;
class FCustomComputation;

/** The computation that a subcommand works on: one of a project, with the values that options set. */
class FSetUpTarget {
 public:
    enum class Access {
        Read,  //!< nothing is written beside the project
        Run,   //!< the project is opened as a script opens it
    };

    FSubcommand::Argument projectArgument() { return {"PROJECT", "The project", &mProject, true}; }
    FSubcommand::Argument setArgument() {
        return {"--set NAME=VALUE", "Sets an entry or a parameter for this call; can be repeated", &mValues};
    }
    FSubcommand::Argument computationArgument() {
        return {"--computation NAME", "The computation, if the project has several", &mName};
    }

    /** Opens the project, finds the computation and sets the values. Returns an exit code, with a message for others
     *  than FExitCode::done. */
    int open(Access access) const;
    /**
     * Reads the results of the last runs of those computations whose results it uses, with a warning where such a run
     * isn't valid any more.
     */
    void readSuppliers() const;
    /** The computation; null before a successful `open`. */
    FCustomComputation* computation() const { return mpComputation; }

    /** Opens a project; an exit code as `open`. */
    static int openProject(const QString& path, Access access);
    static QStringList computationNames();
    /** The computation of that name, or without a name the only one. Null, with a message, if there is none. */
    static FCustomComputation* find(const QString& name);

 private:
    /** A value that an option sets: a parameter, or an entry of a configuration. Empty for an unknown name. */
    struct FPlace;

    bool set(const QString& assignment) const;
    /** @param remedy  gets what to write instead of a name that several configurations have */
    FPlace placeOf(const QString& name, QString& remedy) const;
    /** The configuration of the computation, and those of the computations whose results it uses. */
    QList<FConfigurationCustom*> configurations() const;
    QStringList knownNames() const;

    std::string mProject;
    std::string mName;
    std::vector<std::string> mValues;
    mutable FCustomComputation* mpComputation = nullptr;
};
