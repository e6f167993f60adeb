#pragma once

#include <QStyledItemDelegate>

/** Edits names of objects in place. */
class FObjectNameDelegate : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
