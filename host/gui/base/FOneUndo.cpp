#include "host/gui/base/FOneUndo.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

namespace {

/** An action of the window that a widget is in, or of another widget around it; null if there is none. */
QAction* actionAround(const QWidget& widget, const QString& id) {
    for (const QWidget* around = &widget; around; around = around->parentWidget()) {
        for (QAction* action : around->actions()) {
            if (action->objectName() == id) {
                return action;
            }
        }
    }
    return nullptr;
}

}  // namespace

FOneUndo::FOneUndo(QWidget* field, Change change) : QObject(field), mChange(change) {
    field->installEventFilter(this);
    // A list of choices that can be typed passes its keys on.
    if (auto* line = field->findChild<QLineEdit*>()) {
        line->installEventFilter(this);
    }
}

void FOneUndo::replaceIn(QMenu& menu, const QWidget& text) {
    const QList<QAction*> own = menu.actions();
    QAction* undo = actionAround(text, QStringLiteral("undo"));
    QAction* redo = actionAround(text, QStringLiteral("redo"));
    if (undo && redo && own.size() > 2) {
        menu.insertActions(own[0], {undo, redo});
        delete own[0];
        delete own[1];
    }
}

bool FOneUndo::isTyping(const QLineEdit* line) const {
    return mChange == Change::Finished && line && line->isModified();
}

bool FOneUndo::eventFilter(QObject* watched, QEvent* event) {
    auto* line = qobject_cast<QLineEdit*>(watched);
    if (isTyping(line)) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    if (event->type() == QEvent::ContextMenu && line && !line->isReadOnly()) {
        QMenu* menu = line->createStandardContextMenu();
        menu->setAttribute(Qt::WA_DeleteOnClose);
        replaceIn(*menu, *line);
        menu->popup(static_cast<const QContextMenuEvent*>(event)->globalPos());
        return true;
    }
    return QObject::eventFilter(watched, event);
}
