#include "host/gui/panels/FProblemModel.h"

#include "host/gui/base/FSeverityLook.h"

FProblemModel::FProblemModel() : mpWatch(FProblemWatch::get()) {
    connect(mpWatch.get(), &FProblemWatch::checked, this, &FProblemModel::take);
    take();
}

void FProblemModel::take() {
    beginResetModel();
    mProblems = mpWatch->problems();
    endResetModel();
    emit checked();
}

int FProblemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : mProblems.size();
}

int FProblemModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : columns;
}

QVariant FProblemModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const FSetUpProblem& problem = mProblems.at(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return index.column() == severityColumn ? FSeverityLook::of(problem.severity).word
                   : index.column() == objectColumn ? (problem.place.isEmpty() ? problem.object : problem.place)
                   : index.column() == textColumn   ? problem.text
                                                    : problem.remedy;
        case Qt::ToolTipRole:
            return problem.toMessage().toLine();
        case Qt::DecorationRole:
            return index.column() == severityColumn ? FSeverityLook::of(problem.severity).icon : QVariant();
        case Qt::ForegroundRole:
            return index.column() == severityColumn ? FSeverityLook::of(problem.severity).color : QVariant();
        default:
            return {};
    }
}

QVariant FProblemModel::headerData(int section, Qt::Orientation orientation, int role) const {
    static const char* const titles[] = {"Severity", "Where", "Problem", "Remedy"};
    return orientation == Qt::Horizontal && role == Qt::DisplayRole && section < columns
               ? QString::fromLatin1(titles[section])
               : QAbstractTableModel::headerData(section, orientation, role);
}
