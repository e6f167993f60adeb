#include "genericintegration/editors/FFormFields.h"

#include "host/gui/base/FComboBox.h"

#include <QSignalBlocker>

QComboBox* FFormFields::combo(const char* id, const char* name, const QStringList& items) {
    constexpr int shortest = 6;  // characters
    auto* box = named(new FComboBox, id, name);
    box->addItems(items);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(shortest);
    return box;
}

void FFormFields::select(QComboBox& combo, int index) {
    const QSignalBlocker blocker(&combo);
    combo.setCurrentIndex(index);
}
