#pragma once

#include "host/core/FExport.h"
#include "host/run/FComputationGraph.h"

#include <QGraphicsScene>
#include <QHash>
#include <QPalette>

class FChainBox;
class FManaged;

/**
 * The picture of all chains of the project: computations as boxes, what they use of each other as arrows from left to
 * right.
 */
class MERIX_EXPORT FChainScene : public QGraphicsScene {
    Q_OBJECT

 public:
    explicit FChainScene(QObject* parent);

    /** Shows the model as it is now. Boxes and arrows are placed again only if there are others. */
    void follow();
    /** Shows the present state of a computation's run. */
    void followRun(const FManaged* computation);
    /** Takes a computation that has left the model out of the picture. */
    void forget(const FManaged* computation);
    /** After a change of palette or font. */
    void updateLook();

    /** In the order of the computations' creation. */
    const QList<FChainBox*>& boxes() const { return mBoxes; }
    /** Null if there is none. */
    FChainBox* boxOf(const FManaged* computation) const;
    /** The nearest box in a direction; null if there is none. */
    FChainBox* nextTo(const FChainBox& box, Qt::Key direction) const;

    const QPalette& colors() const { return mColors; }
    bool showsSelection() const { return mShowsSelection; }
    /** The picture as an SVG file, in light colours and without the selection. */
    QByteArray toSvg();

 private:
    void build(const FComputationGraph& graph);
    void addArrow(const FComputationGraph::Link& link, double lane);
    QPointF placeOf(int column, double row) const;

    QList<FChainBox*> mBoxes;
    QHash<const FManaged*, FChainBox*> mBoxOf;
    std::vector<int> mIds;
    std::vector<FComputationGraph::Link> mLinks;
    QPalette mColors;
    bool mShowsSelection = true;
};
