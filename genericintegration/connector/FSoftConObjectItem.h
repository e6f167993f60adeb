#pragma once

#include "genericintegration/connector/FItemIcon.h"
#include "genericintegration/connector/FSoftwareConnectorItem.h"
#include "genericintegration/connector/layout/FLayoutItem.h"
#include "host/core/FExpr.h"

class QGraphicsProxyWidget;
class QGraphicsRectItem;

/** An item that stands for an object of the set-up. Most have a frame and a button that deletes them. */
class FSoftConObjectItem : public FClass<FSoftConObjectItem, FSoftwareConnectorItem> {
 public:
    static FClassData mClass;

    FSoftConObjectItem() = default;
    /** @param object  a prototype for an object that `createObject` makes */
    FSoftConObjectItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object, SoftConArea area,
                       const QString& image);
    ~FSoftConObjectItem() override;

    virtual const FExpr<FObject>& getObject() const { return mObject; }
    /** What a click selects for the editor of objects; empty: nothing. */
    virtual FExpr<FObject> getEditorObject() const { return mObject; }
    /** A text to paint as the picture; false if there is no new one. */
    virtual bool getPreviewText(QString& text);
    virtual void selectObject();
    /**
     * Makes the object, as one step.
     * @param relativePath  the base of the path, or the folder that the file is kept in
     */
    virtual void createObject(const QString& path, const QString& relativePath);
    /** What a double click does; false if it has no effect on this item. */
    virtual bool open();
    /** Takes the object out of the set-up. */
    virtual void removeObject() {}
    /** Draws the picture and places its parts. */
    virtual void updateItem();

    /** Whether the user points at the item, has selected its object, or would reach it with keys. */
    bool isEmphasized() const;
    /** After a change of the palette or of the screen. */
    virtual void updateLook();

    /** The item was taken out of the scene: it holds nothing any more, and dies when the event is handled. */
    virtual void release();

    FLayoutItem toLayoutItem() const;
    /** Brings the bounding rectangle up to date after a layout has changed the frame. */
    void fit(FLayoutItem& item) const;
    /** Takes over what a layout has decided, also the position. */
    void applyLayout(const FLayoutItem& item);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
    /** Null for an item that can't be deleted. */
    QGraphicsProxyWidget* deleteProxy() const { return mDeleteProxy; }

 protected:
    /** Makes the frame and the button. */
    void init();
    void setObject(const FExpr<FObject>& object);
    void setupItem(const QString& name, bool noFrame);
    void placeCaption(const QString& text);
    /** @param prefix  of the path of the picture, before the name of the size */
    void paintIcon(const QString& prefix, const QString& name, const FItemIcon::Colors& colors);
    /** Has the item updated, unless it is just being. */
    void markOutOfDate();

    /** It evaluates only what it shows: a picture has no results read, and no warning about those that aren't there. */
    bool updatesSuppliersItself() const override { return true; }
    bool sceneEventFilter(QGraphicsItem* watched, QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hoverEnterEvent(QGraphicsSceneHoverEvent* event) override;
    void hoverLeaveEvent(QGraphicsSceneHoverEvent* event) override;
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override;
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override;

    bool mDoubleClicked = false;  //!< the release that follows isn't a click
    FExpr<FObject> mObject;       //!< the item depends on it
    QGraphicsRectItem* mFrame = nullptr;
    QGraphicsProxyWidget* mDeleteProxy = nullptr;

 private:
    void tellEmphasis();
    void paintFrame();
};
