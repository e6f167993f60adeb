#include "host/gui/panels/FProblemsPanel.h"

#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FListView.h"
#include "host/gui/panels/FProblemModel.h"

#include <QVBoxLayout>

FProblemsPanel::FProblemsPanel(FNavigator& navigator)
    : mpModel(new FProblemModel),
      mpView(new FListView(QStringLiteral("problemList"), QStringLiteral("Problems"), mpModel, this)) {
    mpModel->setParent(this);
    mpView->setWidths({14, 26, 70});
    new FEmptyHint(mpView, QStringLiteral("No problems found"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(mpView);
    const auto show = [this, &navigator](const QModelIndex& index) {
        const FSetUpProblem& problem = mpModel->problem(index.row());
        navigator.showPlace(problem.place, problem.object);
    };
    connect(mpView, &QTreeView::clicked, this, show);
    connect(mpView, &QTreeView::activated, this, show);
}
