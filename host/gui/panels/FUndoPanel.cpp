#include "host/gui/panels/FUndoPanel.h"

#include "host/gui/panels/FUndoModel.h"

#include <QListView>
#include <QVBoxLayout>

FUndoPanel::FUndoPanel() : mpModel(new FUndoModel), mpView(new QListView(this)) {
    mpModel->setParent(this);
    mpView->setObjectName(QStringLiteral("undoList"));
    mpView->setAccessibleName(QStringLiteral("Steps"));
    mpView->setModel(mpModel);
    mpView->setUniformItemSizes(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);
    const auto go = [this](const QModelIndex& index) { mpModel->goTo(index.row()); };
    connect(mpView, &QListView::clicked, this, go);
    connect(mpView, &QListView::activated, this, go);
    connect(mpModel, &FUndoModel::followed, this, [this] {
        const QModelIndex present = mpModel->index(mpModel->present());
        mpView->setCurrentIndex(present);
        mpView->scrollTo(present);
    });
}
