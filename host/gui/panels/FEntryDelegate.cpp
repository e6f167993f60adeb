#include "host/gui/panels/FEntryDelegate.h"

#include "host/gui/fields/FScriptCompleter.h"
#include "host/gui/panels/FEntryModel.h"

#include <QComboBox>
#include <QLineEdit>

QWidget* FEntryDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const {
    Q_UNUSED(option)
    const QStringList choices = index.data(FEntryModel::choicesRole).toStringList();
    if (!choices.isEmpty()) {
        auto* box = new QComboBox(parent);
        box->addItems(choices);
        connect(box, QOverload<int>::of(&QComboBox::activated), this, [this, box] {
            auto* self = const_cast<FEntryDelegate*>(this);
            emit self->commitData(box);
            emit self->closeEditor(box);
        });
        mpOpen = box;
    } else {
        auto* line = new QLineEdit(parent);
        line->setFrame(false);
        if (index.column() == FEntryModel::valueColumn) {
            new FScriptCompleter(line);
        }
        mpOpen = line;
    }
    mpOpen->setObjectName(QStringLiteral("entryEditor"));
    mpOpen->setAccessibleName(index.data(FEntryModel::pathRole).toString());
    return mpOpen;
}

void FEntryDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* box = qobject_cast<QComboBox*>(editor)) {
        box->setCurrentText(text);
    } else if (auto* line = qobject_cast<QLineEdit*>(editor); line && !line->isModified() && line->text() != text) {
        line->setText(text);
    }
}

// A step that begins while the editor is open takes over its text; one that this makes must not do so again.
void FEntryDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
    if (mIsCommitting) {
        return;
    }
    const auto* box = qobject_cast<QComboBox*>(editor);
    const auto* line = qobject_cast<QLineEdit*>(editor);
    mIsCommitting = true;
    model->setData(index, box ? box->currentText() : line->text(), Qt::EditRole);
    mIsCommitting = false;
}

void FEntryDelegate::commitOpen() {
    const QPointer<QWidget> editor = mpOpen;
    if (!editor || mIsCommitting) {
        return;
    }
    emit commitData(editor);
    if (editor) {
        emit closeEditor(editor);
    }
}
