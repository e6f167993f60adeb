#include "host/gui/base/FOneUndo.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>

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

/** The line in which the text of a field is; null if it has none. */
QLineEdit* lineOf(QObject* field) {
    auto* line = qobject_cast<QLineEdit*>(field);
    return line ? line : field->findChild<QLineEdit*>();
}

/** What the standard menu of a spin box has below that of its line. */
void addSteps(QMenu& menu, QSpinBox& box) {
    menu.addSeparator();
    menu.addAction(QStringLiteral("&Step up"), &box, &QSpinBox::stepUp)->setEnabled(box.value() < box.maximum());
    menu.addAction(QStringLiteral("Step &down"), &box, &QSpinBox::stepDown)->setEnabled(box.value() > box.minimum());
}

}  // namespace

FOneUndo::FOneUndo(QWidget* field, Change change) : QObject(field), mChange(change) {
    field->installEventFilter(this);
    // The event for a menu comes to the line, or where the focus is, which is the field.
    if (QLineEdit* line = lineOf(field); line && line != field) {
        line->installEventFilter(this);
    }
}

void FOneUndo::putInto(QMenu& menu, const QWidget& text, bool isEditable) {
    QAction* undo = actionAround(text, QStringLiteral("undo"));
    QAction* redo = actionAround(text, QStringLiteral("redo"));
    const QList<QAction*> standard = menu.actions();
    const int own = isEditable ? 2 : 0;
    if (!undo || !redo || standard.size() <= own) {
        return;
    }
    menu.insertActions(standard.first(), {undo, redo});
    if (own == 0) {
        menu.insertSeparator(standard.first());
    }
    qDeleteAll(standard.mid(0, own));
}

bool FOneUndo::isTyping(const QLineEdit* line) const {
    return mChange == Change::Finished && line && line->isModified();
}

void FOneUndo::showMenu(QLineEdit& line, const QContextMenuEvent& event) {
    QMenu* menu = line.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    putInto(*menu, line, true);
    if (auto* box = qobject_cast<QSpinBox*>(line.parentWidget())) {
        addSteps(*menu, *box);
    }
    menu->popup(event.globalPos());
}

bool FOneUndo::eventFilter(QObject* watched, QEvent* event) {
    QLineEdit* line = lineOf(watched);
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
        showMenu(*line, *static_cast<const QContextMenuEvent*>(event));
        return true;
    }
    return QObject::eventFilter(watched, event);
}
