#pragma once

#include "genericintegration/connector/layout/FItemRequests.h"
#include "genericintegration/connector/layout/SoftConArea.h"
#include "host/core/FObjectList.h"

class QMimeData;

/** What is dragged onto the scene of a connector. */
namespace FSceneDrops {

/** Whether there are files that the area takes. Doesn't look into folders, as `files` does. */
bool hasFiles(const QMimeData& data, SoftConArea area);
/** Requests for items of the dragged files; none where an area takes no files. */
FItemRequests::List files(const QMimeData& data, SoftConArea area);
/** The dragged objects that can be exported. A feature definition can only be dragged alone. */
FExpr<FObjectList> objects(const QMimeData& data);

}  // namespace FSceneDrops
