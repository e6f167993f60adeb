#pragma once

#include "host/core/FExport.h"

#include <QStringList>

class FMainWindow;
class QMimeData;

/** Files that another program drops on the window, where no part of it takes them itself. */
namespace FFileDrop {

/** The files of this machine that the data names. */
MERIX_EXPORT QStringList filesIn(const QMimeData* data);
/** Opens a project, or imports the set-ups of files; for any other file, says where it can be dropped. */
MERIX_EXPORT void take(const QStringList& files, FMainWindow& window);

}  // namespace FFileDrop
