#include "host/gui/panels/FUndoModel.h"

#include "host/core/FChanges.h"
#include "host/core/FHistory.h"
#include "host/core/FUserStep.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FStateColor.h"

#include <QColor>

FUndoModel::FUndoModel() {
    const FChanges* changes = FChanges::instance();
    const auto follow = [this] { mFollow.request(); };
    connect(changes, &FChanges::stepDone, this, follow);
    connect(changes, &FChanges::stepUndone, this, follow);
    connect(changes, &FChanges::stepRedone, this, follow);
    connect(changes, &FChanges::stepDropped, this, follow);
    connect(changes, &FChanges::projectOpened, this, follow);
    connect(changes, &FChanges::projectClosed, this, follow);
    mFollow.request();
}

void FUndoModel::follow() {
    beginResetModel();
    mDone = FHistory::instance()->getLabels();
    mUndone = FHistory::instance()->getUndoneLabels();
    endResetModel();
    emit followed();
}

void FUndoModel::goTo(int row) {
    FUserStep::commitEdits();
    FHistory* history = FHistory::instance();
    const int steps = row - history->getLabels().size();
    for (int step = 0; step > steps && history->undo(); --step) {
    }
    for (int step = 0; step < steps && history->redo(); ++step) {
    }
}

int FUndoModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : mDone.size() + mUndone.size() + 1;
}

QVariant FUndoModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return {};
    }
    const int row = index.row();
    const bool isUndone = row > mDone.size();
    switch (role) {
        case Qt::DisplayRole:
            return row == 0   ? QStringLiteral("Start")
                   : isUndone ? QStringLiteral("%1 (undone)").arg(mUndone.at(row - mDone.size() - 1))
                              : mDone.at(row - 1);
        case Qt::DecorationRole:
            // The other rows keep the place of the sign free.
            return row == present() ? QVariant(FIcons::get(QStringLiteral("go-next")))
                                    : QVariant(QColor(Qt::transparent));
        case Qt::ForegroundRole:
            return isUndone ? FStateColor::of(FStateColor::State::Secondary) : QVariant();
        default:
            return {};
    }
}
