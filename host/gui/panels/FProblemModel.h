#pragma once

#include "host/core/FExport.h"
#include "host/run/FSetUpCheck.h"

#include <QAbstractTableModel>
#include <QTimer>

/** What is wrong with the set-ups of all computations. Checked a moment after each change. */
class MERIX_EXPORT FProblemModel : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Column { severityColumn, objectColumn, textColumn, remedyColumn, columns };

    FProblemModel();

    const FSetUpProblem& problem(int row) const { return mProblems.at(row); }
    /** Checks now. */
    void check();
    /** Time between a change and the check, in milliseconds. */
    void setDelay(int delay) { mTimer.setInterval(delay); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
    void checked();

 private:
    FSetUpCheck::Problems mProblems;
    QTimer mTimer;
};
