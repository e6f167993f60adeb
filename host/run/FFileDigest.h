#pragma once

#include "host/core/FExport.h"

#include <QString>

/** Texts that tell contents of files apart. */
namespace FFileDigest {

/** Empty if there is no such ordinary file. A file is read again only if its size or its time has changed. */
MERIX_EXPORT QString of(const QString& path);

}  // namespace FFileDigest
