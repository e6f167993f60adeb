#pragma once

#include "host/core/FExport.h"

#include <QString>

/**
 * The path of a file to import. Environment variables and a leading ~ are expanded, see FFile::resolveEnv. In a running
 * script, a relative path starts at the folder of the script if the file exists there, else at the current folder.
 */
MERIX_EXPORT QString lodmPath(const QString& fileName);
