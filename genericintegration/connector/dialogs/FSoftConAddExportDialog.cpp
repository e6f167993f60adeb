#include "genericintegration/connector/dialogs/FSoftConAddExportDialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

FSoftConAddExportDialog::FSoftConAddExportDialog(QWidget* parent, std::function<void()> addSelected)
    : QDialog(parent), mAddSelected(std::move(addSelected)) {
    setModal(false);
    setWindowTitle(QStringLiteral("Add Export"));
    auto* group = new QGroupBox(this);
    constexpr int spacing = 20;
    auto* grid = new QGridLayout(group);
    grid->setSpacing(spacing);
    grid->setColumnStretch(0, 1);
    grid->addWidget(new QLabel(QStringLiteral("<h4>Export geometry from the model</h4>"), group), 0, 0, 1, 2);
    auto* text = new QLabel(
        QStringLiteral("Please select all geometric entities from the ObejctTree you intend to export and press "
                       "\"Create Export Geometry Item\". (As an alternativ you could skip this dialog and simply drag "
                       "& drop your selection onto the Geometry Export area.)"),
        group);
    text->setWordWrap(true);
    grid->addWidget(text, 1, 0);
    auto* add = new QPushButton(QStringLiteral("Create Export Geometry Item"), group);
    grid->addWidget(add, 1, 1, Qt::AlignBottom);
    auto* rest = new QWidget(this);
    auto* cancel = new QPushButton(QStringLiteral("Cancel"), this);
    auto* column = new QVBoxLayout(this);
    column->addWidget(group, 0, Qt::AlignTop);
    column->addWidget(rest, 1);
    column->addWidget(cancel, 0, Qt::AlignRight | Qt::AlignBottom);
    connect(add, &QPushButton::clicked, this, &FSoftConAddExportDialog::addGeometry);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void FSoftConAddExportDialog::addGeometry() {
    if (mAddSelected) {
        mAddSelected();
    }
    accept();
}
