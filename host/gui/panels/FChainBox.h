#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/run/FRunRecord.h"

#include <QGraphicsObject>

class FExternComputation;

/** A computation in the picture of chains: its name, its program, and the state of its run. */
class MERIX_EXPORT FChainBox : public QGraphicsObject {
    Q_OBJECT

 public:
    explicit FChainBox(const FExpr<FExternComputation>& computation);

    const FExpr<FExternComputation>& computation() const { return mComputation; }
    /** Takes over what the computation says now. */
    void follow();
    /** What it shows, in one line. */
    QString text() const;

    static QSizeF sizeIn(const QFont& font);
    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

 private:
    QString toolTipText(const FExternComputation& computation) const;

    FExpr<FExternComputation> mComputation;
    QString mName;
    QString mProgram;
    QString mStateText;
    FRunRecord::State mState = FRunRecord::State::Ready;
};
