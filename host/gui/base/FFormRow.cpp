#include "host/gui/base/FFormRow.h"

#include <QHBoxLayout>
#include <QLabel>

FFormRow::FFormRow(const QString& label, const QList<QWidget*>& fields, QWidget* parent)
    : QWidget(parent), mpLabel(new QLabel(label, this)) {
    setObjectName(QStringLiteral("AttributeRow"));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(3, 4, 3, 4);
    line->addWidget(mpLabel);
    bool isFilled = false;
    for (QWidget* field : fields) {
        const bool isFixed = field->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
        line->addWidget(field, isFixed ? 0 : 1);
        isFilled = isFilled || !isFixed;
        if (field->accessibleName().isEmpty()) {
            field->setAccessibleName(label);
        }
    }
    if (!isFilled) {
        line->addStretch(1);
    }
    // With a buddy, "&" would be the mark of an access key.
    mpLabel->setBuddy(label.contains(QLatin1Char('&')) ? nullptr : fields.value(0));
}
