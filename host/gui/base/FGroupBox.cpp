#include "host/gui/base/FGroupBox.h"

#include "host/gui/base/FFormRow.h"

#include <QVBoxLayout>

namespace {

constexpr int rowSpacing = 4;

}  // namespace

FGroupBox::FGroupBox(const QString& title, QWidget* parent) : QGroupBox(title, parent) {
    auto* column = new QVBoxLayout(this);
    column->setSpacing(rowSpacing);
    column->setContentsMargins(rowSpacing, rowSpacing, rowSpacing, rowSpacing);
}

void FGroupBox::addRow(FFormRow* row) {
    layout()->addWidget(row);
}
