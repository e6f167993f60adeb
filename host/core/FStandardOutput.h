#pragma once

#include "host/core/FExport.h"

#include <QString>

/** What the program prints for its user or for another program, as opposed to its messages. */
class MERIX_EXPORT FStandardOutput {
 public:
    /** Writes a text. If that fails, logs an error, once, and returns false from then on. */
    static bool write(const QString& text);
    /** Whether everything could be written. */
    static bool isGood();
    /** Keeps files that are opened later from becoming the standard output, if the program is started without one. */
    static void reserve();
};
