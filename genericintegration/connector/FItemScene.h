#pragma once

#include "genericintegration/connector/layout/FLayoutScene.h"
#include "genericintegration/templates/FGenIntFile.h"
#include "host/core/FObjectList.h"
#include "host/run/FExternComputation.h"

#include <QSizeF>

class FSoftConLayout;
class FSoftConObjectItem;
class QGraphicsItem;
class QGraphicsScene;
class QGraphicsSceneDragDropEvent;

/** What an item of a connector needs of the scene that it is in. */
class FItemScene : public FLayoutScene {
 public:
    /** The same object. */
    virtual QGraphicsScene* asGraphicsScene() = 0;
    virtual FSoftConLayout* getLayout() const = 0;
    virtual FExpr<FExternComputation> getComputation() const = 0;
    virtual void setComputationItemSize(const QSizeF& size) = 0;

    /** Shows the editor of what the item stands for, unless a double click follows. */
    virtual void callEditor(const FSoftConObjectItem* item) = 0;
    /** The user points at the item, or has left it: the lines from and to it look different. */
    virtual void emphasisChanged(const FSoftConObjectItem* item) = 0;
    virtual void gotoTab(const FExpr<FGenIntFile>& file) = 0;
    virtual void triggerAddTab(const FExpr<FGenIntFile>& file) = 0;
    virtual void setTabName(const FExpr<FGenIntFile>& file) = 0;

    /** Makes an item for an object, or with a prototype for a new object; null if that fails. */
    virtual FSoftConObjectItem* createItem(QGraphicsItem* parent, const FExpr<FObject>& object, const QString& path,
                                           const QString& relativePath) = 0;
    /** Removes the item with its object. The item itself lives until the present event is handled. */
    virtual void deleteItem(FSoftConObjectItem* item) = 0;
    /** The dragged objects that can be exported; empty if there is none. */
    virtual FExpr<FObjectList> extractFObjectMimeData(const QGraphicsSceneDragDropEvent* event) const = 0;

    virtual void runComputation() = 0;
    virtual void readResults() = 0;
    virtual void showOutputFilesPreview() = 0;
    virtual void exportIntegration() = 0;

 protected:
    FItemScene() = default;
    ~FItemScene() = default;
    FItemScene(const FItemScene&) = default;
    FItemScene& operator=(const FItemScene&) = default;
};
