#pragma once

#include "host/core/FExport.h"

#include <QString>

#include <functional>

/** What the program prints for its user or for another program, as opposed to its messages. */
class MERIX_EXPORT FStandardOutput {
 public:
    /** Writes a text. If that fails, logs an error, once, and returns false from then on. */
    static bool write(const QString& text);
    /** Where texts are written as well, such as a console in a window; an empty function ends it. Returns the one
     *  before. */
    using Copy = std::function<void(const QString&)>;
    static Copy setCopy(Copy copy);
    /** Whether everything could be written. */
    static bool isGood();
    /** Keeps files that are opened later from becoming the standard output, if the program is started without one. */
    static void reserve();
};
