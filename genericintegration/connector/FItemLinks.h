#pragma once

#include <QGraphicsItem>
#include <QLineF>
#include <QPainterPath>
#include <QPointF>
#include <QVector>

#include <vector>

class FSoftConObjectItem;

/**
 * The lines of a connector's scene from items to the templates that they feed. They are below all items and take no
 * part in what the mouse does. Lines to the same template join; those of an item that the user points at or has
 * selected are highlighted.
 */
class FItemLinks : public QGraphicsItem {
 public:
    struct Link {
        const FSoftConObjectItem* from;
        const FSoftConObjectItem* to;
    };

    FItemLinks();

    void setLinks(const std::vector<Link>& links);
    /** What the items feed, or are fed by, to be read. */
    QString describe(const FSoftConObjectItem& item) const;
    /** Drops the lines of an item that leaves the scene. */
    void forget(const FSoftConObjectItem& item);
    /** After items have moved. */
    void place();
    /** The item is highlighted from now on, or no longer. */
    void updateLinksOf(const FSoftConObjectItem& item);

    QRectF boundingRect() const override { return mBounding; }
    QPainterPath shape() const override { return {}; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 private:
    struct Line {
        Link link;
        QVector<QPointF> corners{};  // each right or left of, above or below the one before
        QRectF bounding{};
    };

    void joinLines();
    static void paintLine(QPainter& painter, const Line& line, const QRectF& exposed);

    std::vector<Line> mLines;
    std::vector<QLineF> mJoined;  // what all lines cover, each place once
    std::vector<QLineF> mEnds;    // of the lines at templates, each once
    QRectF mBounding;
};
