#pragma once

#include "host/core/FExport.h"

#include <QList>

class FManaged;
class QMimeData;

/** Dragged objects: the id of the process and the numbers of the objects, so that no pointer ever leaves the program.
 */
namespace FObjectMime {

/** The caller owns the result. */
MERIX_EXPORT QMimeData* encode(const QList<FManaged*>& objects);
/** The objects of the model; none if the data isn't of this process or is damaged. */
MERIX_EXPORT QList<FManaged*> decode(const QMimeData* data);

}  // namespace FObjectMime
