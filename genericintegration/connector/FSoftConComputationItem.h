#pragma once

#include "genericintegration/connector/FSoftConObjectItem.h"

/** The computation in the centre, with its name and the menu of what can be done with it. */
class FSoftConComputationItem : public FClass<FSoftConComputationItem, FSoftConObjectItem> {
 public:
    static FClassData mClass;

    FSoftConComputationItem() = default;
    FSoftConComputationItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object, SoftConArea area,
                            const QString& image);

    void updateItem() override {}
    void updateLook() override;

 protected:
    void refresh() override;
    bool sceneEventFilter(QGraphicsItem* watched, QEvent* event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;

 private:
    void paintPictures();

    QString mImage;
    QGraphicsPixmapItem* mArrow = nullptr;
};
