#include "host/gui/panels/FProblemModel.h"

#include "host/core/FChanges.h"
#include "host/core/FObjectManager.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"
#include "host/run/FExternComputation.h"

#include <QSet>

namespace {

using Severity = FSetUpProblem::Severity;

constexpr int usualDelay = 300;

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

FProblemModel::FProblemModel() {
    mTimer.setSingleShot(true);
    mTimer.setInterval(usualDelay);
    connect(&mTimer, &QTimer::timeout, this, &FProblemModel::check);
    const FChanges* changes = FChanges::instance();
    const auto checkSoon = [this] { mTimer.start(); };
    connect(changes, &FChanges::stepDone, this, checkSoon);
    connect(changes, &FChanges::stepUndone, this, checkSoon);
    connect(changes, &FChanges::stepRedone, this, checkSoon);
    connect(changes, &FChanges::projectOpened, this, checkSoon);
    connect(changes, &FChanges::projectClosed, this, checkSoon);
    connect(changes, &FChanges::objectLeft, this, checkSoon);
    mTimer.start();
}

// Nothing is read for it: values that come from files of other runs are left to the check before a run.
void FProblemModel::check() {
    beginResetModel();
    mProblems.clear();
    QSet<QString> known;
    for (const FManaged* object : FObjectManager::instance()->getManaged(FExternComputation::null())) {
        for (const FSetUpProblem& problem :
             FSetUpCheck::problemsOf(dynamic_cast<const FExternComputation&>(*object), false)) {
            if (!known.contains(problem.key())) {
                known.insert(problem.key());
                mProblems.append(problem);
            }
        }
    }
    std::stable_sort(mProblems.begin(), mProblems.end(),
                     [](const FSetUpProblem& a, const FSetUpProblem& b) { return a.severity > b.severity; });
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
