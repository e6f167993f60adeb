#pragma once

#include "genericintegration/connector/layout/SoftConArea.h"

class FSoftConScene;
class FSoftwareConnector;
class FSoftwareConnectorItem;
class QPoint;

/** The context menu of a connector's scene: what can be added at that place, the sizes of items, copying a name. */
namespace FSceneMenu {

/** @param item  the one under the pointer, or null */
void open(FSoftConScene& scene, FSoftwareConnector& connector, SoftConArea area, FSoftwareConnectorItem* item,
          const QPoint& screenPosition);

}  // namespace FSceneMenu
