#include "host/gui/panels/FObjectNameDelegate.h"

#include "host/gui/fields/FObjectNameValidator.h"

#include <QLineEdit>

QWidget* FObjectNameDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                           const QModelIndex& index) const {
    Q_UNUSED(option)
    Q_UNUSED(index)
    auto* editor = new QLineEdit(parent);
    editor->setObjectName(QStringLiteral("nameEditor"));
    editor->setAccessibleName(QStringLiteral("Name"));
    editor->setFrame(false);
    editor->setValidator(new FObjectNameValidator(editor));
    return editor;
}
