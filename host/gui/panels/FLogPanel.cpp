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
    mpView->setWidths({15, 32});
    new FEmptyHint(mpView, QStringLiteral("Messages of the program appear here"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);

    connect(mpView, &QTreeView::activated, this, &FLogPanel::showSource);
    // The end may move away by a new message, and by a panel that gets smaller.
    QScrollBar* bar = mpView->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this, bar](int value) { mFollows = value == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int /*first*/, int last) {
        if (mFollows) {
            bar->setValue(last);
        }
    });
}

void FLogPanel::showSource(const QModelIndex& index) {
    const FLogMsg& message = mpModel->message(index.row());
    mNavigator.showPlace(message.place, message.source);
}
