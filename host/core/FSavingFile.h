#pragma once

#include "host/core/FExport.h"

#include <QFile>

/**
 * The temporary file of a save: `NAME.saving-xxxxxx`, with six random letters, beside the file NAME that it is to
 * replace. It is locked while it is open, which tells it from one that a killed process has left.
 */
class MERIX_EXPORT FSavingFile {
 public:
    /** Opens a new one for reading and writing. Removes what killed saves of the same file have left. */
    static bool open(QFile& file, const QString& path);
    /** Has it replace the file, in one step, when its bytes are on the disk. False, with all as it was, if it can't. */
    static bool replace(QFile& file, const QString& path);
};
