#pragma once

#include "genericintegration/connector/FSoftConEntryItem.h"
#include "host/design/FGeometryExport.h"

/** Geometry that is written before a run. More can be dropped on it. */
class FSoftConExportItem : public FClass<FSoftConExportItem, FSoftConEntryItem> {
 public:
    static FClassData mClass;

    FSoftConExportItem() = default;
    FSoftConExportItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object, SoftConArea area,
                       const QString& image);

    /** The object is the list of what is exported, until the entry exists. */
    void createObject(const QString& path, const QString& relativePath) override;
    QString getDisplayName(const FExpr<FEntry>& entry, bool resolved) const override;
    QString getToolTip() const override;
    void updateItem() override;

 protected:
    void refresh() override;
    bool sceneEventFilter(QGraphicsItem* watched, QEvent* event) override;
    void dragMoveEvent(QGraphicsSceneDragDropEvent* event) override;
    void dropEvent(QGraphicsSceneDragDropEvent* event) override;
};
