#pragma once

#include "host/core/FExport.h"
#include "host/run/FSetUpInput.h"
#include "host/run/FSetUpProblem.h"
#include "host/run/FSetUpTable.h"

#include <QHash>
#include <QStringList>
#include <QVector>

#include <functional>

class FDefinition;
class FExternComputation;

/**
 * The check of set-ups before a run. A plug-in derives a class for its own computations and registers an object of it;
 * runs, commands and windows call the static functions, which ask all of them.
 */
class MERIX_EXPORT FSetUpCheck {
 public:
    using Problems = QVector<FSetUpProblem>;
    using Inputs = QVector<FSetUpInput>;
    using Tables = QVector<FSetUpTable>;
    /** Places in templates as name:line, by the path of the entry in its definition. */
    using Uses = QHash<QString, QStringList>;

    virtual ~FSetUpCheck() = default;

    /**
     * What is wrong with a computation and its set-up; nothing for computations of other plug-ins. Logs nothing.
     * @param mayReadFiles  whether values are evaluated that read files, as results of other computations
     */
    virtual Problems problems(const FExternComputation& computation, bool mayReadFiles) const = 0;
    /** The input files that a run writes from templates; nothing for computations of other plug-ins. */
    virtual Inputs inputs(const FExternComputation& computation) const = 0;
    /** The tables of a run's results, in their order; nothing for computations of other plug-ins. */
    virtual Tables tables(const FExternComputation& computation) const = 0;
    /** Where templates use the entries of a definition; nothing for definitions of other plug-ins. */
    virtual Uses uses(const FDefinition& definition) const = 0;

    /** The check must outlive the program's work. */
    static void add(const FSetUpCheck* check);
    static Problems problemsOf(const FExternComputation& computation, bool mayReadFiles);
    static Inputs inputsOf(const FExternComputation& computation);
    static Tables tablesOf(const FExternComputation& computation);
    /** Of an entry that is used very often, the first places. */
    static Uses usesOf(const FDefinition& definition);

    /**
     * Called in place of every run and re-read, which then return false, and whose results have unknown numbers (NaN);
     * an empty function restores them.
     */
    using Substitute = std::function<void(const FExternComputation&)>;
    static void setSubstituteForRuns(Substitute substitute);
    static bool isReplacingRuns();
    /** Calls the substitute; false if there is none. */
    static bool substituteRun(const FExternComputation& computation);
};
