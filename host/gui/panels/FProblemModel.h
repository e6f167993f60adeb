#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FProblemWatch.h"

#include <QAbstractTableModel>

/** The problems that FProblemWatch finds. */
class MERIX_EXPORT FProblemModel : public QAbstractTableModel {
    Q_OBJECT

 public:
    enum Column { severityColumn, objectColumn, textColumn, remedyColumn, columns };

    FProblemModel();

    const FSetUpProblem& problem(int row) const { return mProblems.at(row); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
    void checked();

 private:
    void take();

    std::shared_ptr<FProblemWatch> mpWatch;
    FSetUpCheck::Problems mProblems;
};
