#pragma once

#include "genericintegration/setup/FProblemList.h"

#include <QStringList>

class FConfiguration;
class FDefinitionGenInt;
class FExternComputation;
class FValueTable;
struct FTagUses;

/**
 * Finds what is wrong with a set-up before a run. It logs nothing and changes nothing, and takes time linear in the
 * size of the templates and the number of entries.
 */
class FProblems {
 public:
    /**
     * Each of the three may be null: what is missing is a problem, unless it isn't known without another missing one.
     * @param mayReadFiles  whether values are evaluated that read files, such as results of other computations
     */
    FProblems(const FExternComputation* computation, const FConfiguration* configuration,
              const FDefinitionGenInt* definition, bool mayReadFiles);

    FSetUpCheck::Problems find();
    /** The input templates with the counts of their tags. */
    FSetUpCheck::Inputs inputs();

 private:
    bool findMissing();
    void findProgram();
    void findShellWords();
    void findTemplateNames();
    void findStandardInput();
    void findOptionalFiles();
    void findRequiredValues();
    /** Whether a run writes or copies a file of that name, or may do so. */
    bool mayBeWritten(const QString& name) const;
    void findTags(const FValueTable* table, FTagUses& uses);
    QStringList tagNames() const;

    const FExternComputation* mComputation;
    const FConfiguration* mConfiguration;
    const FDefinitionGenInt* mDefinition;
    bool mMayReadFiles;
    FProblemList mProblems;
    FSetUpCheck::Inputs mInputs;
};
