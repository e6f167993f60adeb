#pragma once

#include "host/core/FExport.h"
#include "host/run/FSetUpProblem.h"

#include <QFrame>

class FListView;
class FManaged;
class FProblemModel;
template <class T>
class FExpr;

/** What is wrong with one object, in a strip above its text; hidden if nothing is. */
class MERIX_EXPORT FProblemStrip : public QFrame {
    Q_OBJECT

 public:
    FProblemStrip(const FExpr<FManaged>& object, QWidget* parent);

 signals:
    /** The user wants to see the place of a problem. */
    void chosen(const FSetUpProblem& problem);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void fit();

    FProblemModel* mpModel;
    FListView* mpView;
};
