#pragma once

#include "host/core/FExport.h"

#include <QObject>

class QContextMenuEvent;
class QLineEdit;
class QMenu;

/** Keeps a field from undoing what is in the model: the window's Undo acts instead, for keys and the context menu. */
class MERIX_EXPORT FOneUndo : public QObject {
    Q_OBJECT

 public:
    enum class Change {
        EachKey,   //!< what is typed is in the model at once
        Finished,  //!< only when it is complete, with `isModified` reset; until then, the field undoes on its own
    };

    /** @param field  gets the keys; owns the object */
    FOneUndo(QWidget* field, Change change);

    /**
     * Has the standard menu of a text undo steps of the project, as the window does.
     * @param isEditable  whether the text can be edited, so that the menu begins with an Undo and a Redo of its own
     */
    static void putInto(QMenu& menu, const QWidget& text, bool isEditable);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool isTyping(const QLineEdit* line) const;
    static void showMenu(QLineEdit& line, const QContextMenuEvent& event);

    Change mChange;
};
