#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

/** Edits names and values of entries in place: values with completion of names, parts of values by choice. */
class FEntryDelegate : public QStyledItemDelegate {
    Q_OBJECT

 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /** Has the model take over what is in the open editor, if there is one. */
    void commitOpen();

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 private:
    mutable QPointer<QWidget> mpOpen;
    mutable bool mIsCommitting = false;
};
