#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * The path of an exchange file, given with environment variables and a leading ~ expanded. In a running script, a
 * relative path starts at the folder of the script if the file exists there, else at the current folder: what a script
 * writes and what it reads then are the same file.
 */
MERIX_EXPORT QString lodmPath(const QString& fileName);
