#include "host/gui/panels/FLogPanel.h"

#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FListView.h"
#include "host/gui/panels/FLogModel.h"

#include <QScrollBar>
#include <QVBoxLayout>

FLogPanel::FLogPanel(FNavigator& navigator)
    : mNavigator(navigator),
      mpModel(new FLogModel),
      mpView(new FListView(QStringLiteral("logList"), QStringLiteral("Messages"), mpModel, this)) {
    mpModel->setParent(this);
    mpView->setWidths({12, 32});
    new FEmptyHint(mpView, QStringLiteral("Messages of the program appear here"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);

    connect(mpView, &QTreeView::activated, this, &FLogPanel::showSource);
    connect(mpModel, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] { mFollows = isAtEnd(); });
    connect(mpModel, &QAbstractItemModel::rowsInserted, this, [this] {
        if (mFollows) {
            mpView->scrollToBottom();
        }
    });
}

bool FLogPanel::isAtEnd() const {
    const QScrollBar* bar = mpView->verticalScrollBar();
    return bar->value() == bar->maximum();
}

void FLogPanel::showSource(const QModelIndex& index) {
    const FLogMsg& message = mpModel->message(index.row());
    mNavigator.showPlace(message.place, message.source);
}
