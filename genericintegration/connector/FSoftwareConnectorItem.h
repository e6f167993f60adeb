#pragma once

#include "genericintegration/connector/FHoverCursor.h"
#include "genericintegration/connector/layout/SoftConArea.h"
#include "host/core/FClass.h"

#include <QGraphicsPixmapItem>
#include <QObject>

class FItemScene;
class QGraphicsSimpleTextItem;

/** A picture with a caption in the scene of a connector. The scene owns it; handles neither keep nor delete it. */
class FSoftwareConnectorItem : public FClass<FSoftwareConnectorItem, QObject, QGraphicsPixmapItem, FObject> {
    Q_OBJECT

 public:
    static FClassData mClass;
    static constexpr bool needsWindows = true;

    FSoftwareConnectorItem() = default;
    /** @param image  path of the first picture; it may be missing */
    FSoftwareConnectorItem(FItemScene* scene, QGraphicsItem* parent, SoftConArea area, const QString& image);

    virtual SoftConArea getArea() const { return mArea; }
    virtual QGraphicsSimpleTextItem* getLabelItem() const { return mLabelItem; }
    virtual QString getToolTip() const { return {}; }
    /** Scales the picture, whatever its proportions. */
    virtual void setPixmapSize(const QSize& size);
    /** The size of the picture, in pixels of the scene. */
    QSize pictureSize() const;
    /** The scene that the item is in; null once it was removed. */
    FItemScene* getScene() const;

    bool doUpdate() const final;

 public slots:
    void copyFileName();

 protected:
    bool isUnderPointer() const { return mCursor.isOn(); }
    /** Shows the present state of the object. Called by each update, and so within the step that changed it. */
    virtual void refresh() {}
    bool isRefreshing() const { return mIsRefreshing; }
    /** A drawing of the resources at its size, for the screen that shows the item; null if there is none. */
    QPixmap drawingOf(const QString& path) const;
    /** How many device pixels the screen has for each one of the scene. */
    double pixelRatio() const;

    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;

    SoftConArea mArea = SoftConNoArea;
    FItemScene* mScene = nullptr;
    QGraphicsSimpleTextItem* mLabelItem = nullptr;
    FHoverCursor mCursor;

 private:
    bool mIsRefreshing = false;
};
