#pragma once

#include "genericintegration/setup/FProblemList.h"
#include "genericintegration/setup/FTagUses.h"
#include "host/lodm/FInputTargets.h"

class FConfiguration;
class FDefinitionGenInt;
class FEntry;
class FGeometryExport;
class FInputFile;
class FObject;
class FValueTable;

/**
 * Finds the problems of the values of a configuration's entries and of the files that they bring, and entries that
 * nothing uses.
 */
class FEntryProblems {
 public:
    /** @param mayReadFiles  whether values are evaluated that read files */
    FEntryProblems(const FConfiguration& configuration, bool mayReadFiles);

    void find(const FDefinitionGenInt& definition, const FValueTable& table, const FTagUses& uses,
              FProblemList& problems);

 private:
    struct FUse;
    static FUse useOf(const FTagUses& uses, int row);

    struct FAwaited;

    /** Whether the entry needs results that aren't there yet; it then joins those of the same supplier. */
    static bool isAwaiting(const FEntry& entry, const FUse& use, QList<FAwaited>& awaited);
    void findAwaited(const QList<FAwaited>& awaited, FProblemList& problems) const;
    void addSameKey(const FEntry& entry, const FEntry& named, FProblemList& problems) const;
    void findFurther(const QStringList& names, FProblemList& problems) const;
    void findValue(const FEntry& entry, const FUse& use, FProblemList& problems);
    void findWritten(const FEntry& entry, const FObject* value, const FUse& use, FProblemList& problems) const;
    void findFile(const FEntry& entry, const FObject* value, FProblemList& problems);
    /** For an entry whose default is a file of the run: that its value is none. */
    void findMissingFile(const FEntry& entry, const FObject* value, FProblemList& problems) const;
    void findInputFile(const FEntry& entry, const FInputFile& file, FProblemList& problems);
    void findExport(const FEntry& entry, const FGeometryExport& geometry, FProblemList& problems);
    void findSameName(const FEntry& entry, const FObject& value, FProblemList& problems);
    void findReadBack(const FDefinitionGenInt& definition, FProblemList& problems) const;
    void findInvalidRun(const FEntry& entry, const QString& path, FProblemList& problems) const;
    void findOtherWidth(const FEntry& entry, const QString& text, const FUse& use, FProblemList& problems) const;
    void addOutside(const FEntry& entry, const QString& file, bool isReportedByRun, FProblemList& problems) const;

    const FConfiguration& mConfiguration;
    bool mMayReadFiles;
    FInputTargets mTargets;
};
