#include "genericintegration/connector/dialogs/FSoftConConnectConnectorDialog.h"

#include "genericintegration/setup/FResultLinks.h"
#include "host/gui/base/FEmptyHint.h"
#include "host/gui/base/FIcons.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>

namespace {

constexpr int expressionRole = Qt::UserRole;

}  // namespace

FSoftConConnectConnectorDialog::FSoftConConnectConnectorDialog(QWidget* parent, const FConnectorInterface* connector)
    : QDialog(parent), mTree(new QTreeWidget(this)), mAddButton(new QPushButton(QStringLiteral("Add"), this)) {
    setObjectName(QStringLiteral("connectConnector"));
    setModal(true);
    setWindowTitle(QStringLiteral("Connect other Software Connector"));
    mTree->setObjectName(QStringLiteral("connectTree"));
    mTree->setAccessibleName(QStringLiteral("Results of other connectors"));
    mTree->setHeaderLabel(QStringLiteral("Name"));
    mTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    new FEmptyHint(mTree, QStringLiteral("No other software connector has a computation yet"));
    fill(connector);
    auto* row = new QHBoxLayout;
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    mAddButton->setEnabled(false);
    mAddButton->setDefault(true);
    row->addStretch(1);
    row->addWidget(mAddButton);
    row->addWidget(cancel);
    auto* column = new QVBoxLayout(this);
    column->addWidget(mTree, 1);
    column->addLayout(row);
    connect(mAddButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(mTree, &QTreeWidget::currentItemChanged, this, &FSoftConConnectConnectorDialog::currentItemChanged);
    constexpr int width = 50;   // characters
    constexpr int height = 20;  // lines
    resize(width * fontMetrics().averageCharWidth(), height * fontMetrics().height());
}

void FSoftConConnectConnectorDialog::fill(const FConnectorInterface* connector) {
    for (const FResultLinks& other : FResultLinks::of(connector)) {
        auto* top = new QTreeWidgetItem(mTree, {other.title});
        top->setIcon(0, FIcons::get(QStringLiteral(":/softConIcon")));
        top->setFlags(Qt::ItemIsEnabled);
        for (const FResultLinks::Link& link : other.links) {
            auto* row = new QTreeWidgetItem(top, {link.name});
            row->setIcon(0, FIcons::get(link.isTemplate ? QStringLiteral(":/softConTemplate_Small")
                                                        : QStringLiteral(":/softConExport_Small")));
            row->setData(0, expressionRole, link.expression);
        }
        top->setExpanded(true);
    }
}

void FSoftConConnectConnectorDialog::currentItemChanged(QTreeWidgetItem* pCur, QTreeWidgetItem* pPrev) {
    Q_UNUSED(pPrev)
    mAddButton->setEnabled(pCur && !pCur->data(0, expressionRole).isNull());
}

QStringList FSoftConConnectConnectorDialog::getSelectedExpressions() const {
    QStringList expressions;
    for (int number = 0; number < mTree->topLevelItemCount(); ++number) {
        const QTreeWidgetItem* top = mTree->topLevelItem(number);
        for (int row = 0; row < top->childCount(); ++row) {
            if (top->child(row)->isSelected()) {
                expressions.append(top->child(row)->data(0, expressionRole).toString());
            }
        }
    }
    return expressions;
}
