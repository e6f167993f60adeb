#include "host/gui/base/FListView.h"

#include "host/core/FClipboard.h"
#include "host/gui/base/FRoomyStyle.h"

#include <QHeaderView>
#include <QKeyEvent>

FListView::FListView(const QString& id, const QString& name, QAbstractItemModel* model, QWidget* parent)
    : QTreeView(parent) {
    setObjectName(id);
    setAccessibleName(name);
    setModel(model);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    header()->setStretchLastSection(true);
    FRoomyStyle::applyTo(*this);
    FRoomyStyle::applyTo(*header());
}

void FListView::setWidths(const QList<int>& characters) {
    const int em = fontMetrics().averageCharWidth();
    for (int column = 0; column < characters.size(); ++column) {
        header()->resizeSection(column, characters.at(column) * em);
    }
}

QString FListView::toText() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty()) {
        for (int row = 0; row < model()->rowCount(); ++row) {
            rows.append(model()->index(row, 0));
        }
    }
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int column = 0; column < model()->columnCount(); ++column) {
            cells.append(row.sibling(row.row(), column).data().toString());
        }
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

void FListView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        FClipboard::setText(toText());
    } else {
        QTreeView::keyPressEvent(event);
    }
}
