#pragma once

#include "genericintegration/connector/FAreaHints.h"
#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FLinkFinder.h"
#include "genericintegration/connector/FSceneKeys.h"
#include "genericintegration/connector/layout/FItemRequests.h"
#include "genericintegration/connector/layout/FLayoutItem.h"
#include "genericintegration/connector/layout/FSoftConLayout.h"
#include "genericintegration/setup/SoftConItemSize.h"
#include "host/core/FQueuedCall.h"

#include <QGraphicsScene>
#include <QTimer>

#include <optional>
#include <vector>

class FItemLinks;
class FSceneFurniture;
class FSoftwareConnector;
class QAction;

/**
 * The scene of a connector: the computation in the centre, its inputs above, its outputs below. It follows the objects
 * of the set-up: each has an item. What a user does to an item is done to its object.
 *
 * Changes only note that the scene must be laid out; that happens once, at the next paint or in the event loop.
 */
class FSoftConScene : public QGraphicsScene, public FItemScene {
    Q_OBJECT

 public:
    /** @param connector  owns the scene */
    explicit FSoftConScene(FSoftwareConnector& connector);
    ~FSoftConScene() override;

    /** Brings the items in line with the objects. */
    void doUpdate();
    void setItemSize(SoftConItemSize size);
    void setRedrawRequired(bool isRequired) { mRedrawRequired = isRequired; }
    /** The area at a point; the last value for none. */
    SoftConArea getArea(const QPointF& point) const;
    void refreshEntryItems();
    void updateInputFileItems();
    /** After a change of the palette or of the screen. */
    void updateLook();
    /** Removes all items at once; the connector has left the model. */
    void clearItems();

    /** The items that stand for objects, in the order of their creation. */
    const QList<FSoftConObjectItem*>& objectItems() const { return mItems; }

    /** The buttons of the areas in reading order. */
    QList<QObject*> buttonParts() const;
    QList<QObject*> itemParts() const;
    const FItemLinks& links() const { return *mpLinks; }
    FSceneKeys& keys() { return mKeys; }
    /** Has the lines between items follow what the templates use. */
    void requestLinks() { mLinkFinder.request(); }

    /** Does what the "+" of an area does. */
    void add(SoftConArea area);
    /** Makes items for files, within the limits for a batch. Call it in a step. */
    void createItems(const QStringList& paths, const FExpr<FObject>& type, const QString& base, bool keepFolders);
    void createItems(const FItemRequests::List& requests);
    /** Makes items for result files that were written after a time, if the scan is on. */
    void scanForResults(const QDateTime& since);
    /** Whether an item shows a result file of exactly the name that the path ends in. */
    bool containsImport(const QString& path) const;

    // ---- FItemScene ----
    QGraphicsScene* asGraphicsScene() override { return this; }
    FSoftConLayout* getLayout() const override { return mLayout.get(); }
    FExpr<FExternComputation> getComputation() const override;
    void setComputationItemSize(const QSizeF& size) override { mComputationItemSize = size; }
    const QSizeF& getComputationItemSize() const { return mComputationItemSize; }
    void callEditor(const FSoftConObjectItem* item) override;
    void emphasisChanged(const FSoftConObjectItem* item) override;
    void gotoTab(const FExpr<FGenIntFile>& file) override;
    void triggerAddTab(const FExpr<FGenIntFile>& file) override;
    void setTabName(const FExpr<FGenIntFile>& file) override;
    FSoftConObjectItem* createItem(QGraphicsItem* parent, const FExpr<FObject>& object, const QString& path,
                                   const QString& relativePath) override;
    void deleteItem(FSoftConObjectItem* item) override;
    FExpr<FObjectList> extractFObjectMimeData(const QGraphicsSceneDragDropEvent* event) const override;
    void calcItemRatios() override;
    void requestRedraw() override { mRedraw.request(); }
    void runComputation() override;
    void readResults() override;
    void showOutputFilesPreview() override;
    void exportIntegration() override;

 public slots:
    void selectItem();
    void updateItems(int index);
    void addInput();
    void addOutput();
    void addExport();
    void addFile();
    void addImport();
    void showDocu(QString area);
    void redraw();
    void resizeItem(QAction* pAction);

 signals:
    void addViewerTab(FExpr<FGenIntFile> pFile);
    void removeViewerTab(FExpr<FGenIntFile> pFile);
    void gotoViewerTab(FExpr<FGenIntFile> pFile);

 protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QGraphicsSceneContextMenuEvent* event) override;
    void dragEnterEvent(QGraphicsSceneDragDropEvent* event) override;
    void dragMoveEvent(QGraphicsSceneDragDropEvent* event) override;
    void dropEvent(QGraphicsSceneDragDropEvent* event) override;

 private:
    void connectFurniture();
    /** Takes an item out of the scene; it still stands for its object. */
    void takeOut(FSoftConObjectItem* item);
    void removeObjectItem(FSoftConObjectItem* item);
    /** The topmost item at a point that a user can act on: no panel and no hint. */
    QGraphicsItem* itemUnder(const QPointF& point) const;
    void layOut(const QRect& view);
    void focusChanged(QGraphicsItem* item, bool isByKey);

    FSoftwareConnector& mConnector;
    FSceneFurniture* mpFurniture;
    QList<FSoftConObjectItem*> mItems;
    FAreaHints mHints;
    FItemLinks* mpLinks;
    FLinkFinder mLinkFinder;
    FSceneKeys mKeys{*this};
    FSmartPtr<FSoftConLayout> mLayout;
    std::optional<FSceneGeometry> mGeometry;
    std::vector<FLayoutItem> mLayoutItems;
    QSizeF mComputationItemSize{100, 100};
    FExpr<FObject> mSelectedObject;  //!< waits to be selected, since a double click may follow
    QTimer mSelectTimer;
    bool mRedrawRequired = false;
    bool mIsUpdating = false;
    FQueuedCall mRedraw{[this] { redraw(); }};
};
