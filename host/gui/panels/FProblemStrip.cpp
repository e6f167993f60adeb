#include "host/gui/panels/FProblemStrip.h"

#include "host/gui/base/FListView.h"
#include "host/gui/panels/FProblemModel.h"

#include <QEvent>
#include <QHeaderView>
#include <QVBoxLayout>

FProblemStrip::FProblemStrip(const FExpr<FManaged>& object, QWidget* parent)
    : QFrame(parent),
      mpModel(new FProblemModel(object)),
      mpView(
          new FListView(QStringLiteral("templateProblems"), QStringLiteral("Problems of this object"), mpModel, this)) {
    mpModel->setParent(this);
    setObjectName(QStringLiteral("problemStrip"));
    mpView->header()->hide();
    mpView->hideColumn(FProblemModel::objectColumn);
    mpView->header()->setSectionResizeMode(FProblemModel::severityColumn, QHeaderView::ResizeToContents);
    mpView->hideColumn(FProblemModel::remedyColumn);  // it is in the tool tip
    mpView->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);
    const auto choose = [this](const QModelIndex& index) {
        const FSetUpProblem problem = mpModel->problem(index.row());
        emit chosen(problem);
    };
    connect(mpView, &QTreeView::clicked, this, choose);
    connect(mpView, &QTreeView::activated, this, choose);
    connect(mpModel, &FProblemModel::checked, this, &FProblemStrip::fit);
    fit();
}

void FProblemStrip::fit() {
    constexpr int mostRows = 3;
    const int rows = qMin(mpModel->rowCount(), mostRows);
    if (rows > 0) {
        mpView->setFixedHeight(rows * mpView->sizeHintForRow(0) + 2 * mpView->frameWidth());
    }
    setVisible(rows > 0);
}

void FProblemStrip::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        fit();
    }
}
