#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * The path of a file to import, given with environment variables and a leading ~ expanded. In a running script, a
 * relative path starts at the folder of the script if the file exists there, else at the current folder.
 */
MERIX_EXPORT QString lodmPath(const QString& fileName);
