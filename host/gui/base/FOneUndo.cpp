#include "host/gui/base/FOneUndo.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

FOneUndo::FOneUndo(QWidget* field, Change change) : QObject(field), mChange(change) {
    field->installEventFilter(this);
    // A list of choices that can be typed passes its keys on.
    if (auto* line = field->findChild<QLineEdit*>()) {
        line->installEventFilter(this);
    }
}

bool FOneUndo::eventFilter(QObject* watched, QEvent* event) {
    const auto* line = qobject_cast<const QLineEdit*>(watched);
    const bool isTyping = mChange == Change::Finished && line && line->isModified();
    if (!isTyping && (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
