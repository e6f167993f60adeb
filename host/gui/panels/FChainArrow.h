#pragma once

#include <QGraphicsItem>
#include <QPainterPath>

/** A link in the picture of chains: an arrow with the names of the files, or of the values, that it stands for. */
class FChainArrow : public QGraphicsItem {
 public:
    /**
     * @param isFile  else the arrow is dashed: numbers pass, and no file is copied
     * @param place   of the middle of the text
     */
    FChainArrow(QPainterPath line, QString text, bool isFile, QPointF place, double room);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 private:
    QRectF textRect() const;
    QString shownText() const;

    QPainterPath mLine;
    QString mText;
    bool mIsFile;
    QPointF mPlace;
    double mRoom;  // for the text
};
