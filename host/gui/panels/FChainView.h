#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"

#include <QGraphicsView>

class FChainBox;
class FChainScene;
class FExternComputation;

/** The view of the picture of chains. The mouse and the keys select one box. */
class MERIX_EXPORT FChainView : public QGraphicsView {
    Q_OBJECT

 public:
    explicit FChainView(FChainScene* scene, QWidget* parent);

    FChainScene& chains() const { return *mpScene; }
    /** The selected box; null if there is none. */
    FChainBox* current() const;
    /** Selects a box, and brings it into view. */
    void setCurrent(FChainBox* box);

 signals:
    /** A double click, or Enter. */
    void opened(const FExpr<FExternComputation>& computation);
    /** The selected box has another one after it. */
    void currentChanged();
    void menuRequested(const QPoint& globalPosition);

 protected:
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void drawBackground(QPainter* painter, const QRectF& rect) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    FChainBox* boxAt(const QPoint& position) const;
    void tellSelection();

    FChainScene* mpScene;
};
