#pragma once

#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FExpr.h"

#include <QString>

class FItemScene;
class FSoftConObjectItem;
class QGraphicsItem;

/** Makes the items of a scene: each kind of object has its kind of item. */
namespace FItemFactory {

/**
 * The item for an object, in the scene. Null, with a message, if there is no item for it.
 * @param relativePath  the base of the path, or the folder that the file is kept in
 */
FSoftConObjectItem* make(FItemScene& scene, QGraphicsItem* parent, const FExpr<FObject>& object, const QString& path,
                         const QString& relativePath);

/**
 * Where the object of a new item is a prototype or a list of geometry, has it make a real one, for the file. False if
 * it couldn't.
 */
bool createObject(FSoftConObjectItem& item, const QString& path, const QString& relativePath);

/** The prototype of the values that an item of a scene shows; null if it shows none. */
const FObject* valueTypeOf(const FSoftConObjectItem& item);

}  // namespace FItemFactory
