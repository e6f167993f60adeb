#include "host/gui/panels/FProblemModel.h"

#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"

namespace {

using Severity = FSetUpProblem::Severity;

const char* iconOf(Severity severity) {
    return severity == Severity::Error     ? "dialog-error"
           : severity == Severity::Warning ? "dialog-warning"
                                           : "dialog-information";
}

QVariant colorOf(Severity severity) {
    return severity == Severity::Error     ? FStateColor::of(FStateColor::State::Bad)
           : severity == Severity::Warning ? FStateColor::of(FStateColor::State::Warning)
                                           : QVariant();
}

}  // namespace

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
            return index.column() == severityColumn ? problem.severityName()
                   : index.column() == objectColumn ? (problem.place.isEmpty() ? problem.object : problem.place)
                   : index.column() == textColumn   ? problem.text
                                                    : problem.remedy;
        case Qt::ToolTipRole:
            return problem.toMessage().toLine();
        case Qt::DecorationRole:
            return index.column() == severityColumn ? FIcons::get(QString::fromLatin1(iconOf(problem.severity)))
                                                    : QVariant();
        case Qt::ForegroundRole:
            return index.column() == severityColumn ? colorOf(problem.severity) : QVariant();
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
