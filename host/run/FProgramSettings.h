#pragma once

#include "host/core/FExport.h"
#include "host/run/FProcessSetup.h"

/** How a computation starts its program; the same from run to run. What each means stands at FExternComputation. */
struct MERIX_EXPORT FProgramSettings {
    QString executable;
    QStringList arguments;
    double timeLimit = 0;
    QStringList environment;
    QString standardInput;
    bool consoleFiles = true;

    bool operator==(const FProgramSettings&) const = default;

    /** What the program prints goes to these files in the folder of the run. */
    static const QString& outputFile();
    static const QString& errorFile();

    /** What keeps the program from being started, for the user; empty if nothing does. */
    QString fault() const;
    /** What it is started with in a folder, given without a slash at its end. */
    FProcessSetup setupIn(const QString& folder) const;
    /** About how many bytes they take, see FStateField. */
    std::size_t heldMemory() const;
};
