#include "genericintegration/editors/FCommittedEdit.h"

#include "host/gui/base/FOneUndo.h"

#include <QKeyEvent>

FCommittedEdit::FCommittedEdit() {
    new FOneUndo(this, FOneUndo::Change::Finished);
    connect(this, &QLineEdit::editingFinished, this, &FCommittedEdit::commit);
}

void FCommittedEdit::show(const QString& text) {
    mShown = text;
    if (this->text() != text && !(isModified() && hasFocus())) {
        setText(text);
        setCursorPosition(0);
    }
}

void FCommittedEdit::commit() {
    if (isModified()) {
        setModified(false);
        emit entered();
    }
}

void FCommittedEdit::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isModified()) {
        setModified(false);
        show(mShown);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
