#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * What a line on the standard error reports when SIGINT or SIGTERM ends the process: the work in progress and where its
 * files are. As long as an object exists, its line is the one; of several, the newest. For the main thread only.
 */
class MERIX_EXPORT FInterruptLine {
 public:
    FInterruptLine(const QString& source, const QString& message, const QString& consequence);
    ~FInterruptLine();
    Q_DISABLE_COPY(FInterruptLine)

    /** From now on, both signals print the line and then end the process as before. One that is ignored stays so. */
    static void install();
};
