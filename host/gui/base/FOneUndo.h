#pragma once

#include "host/core/FExport.h"

#include <QObject>

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
     * Has the standard menu of a text that can be edited, which begins with Undo and Redo, act on steps of the project
     * as the window does.
     */
    static void replaceIn(QMenu& menu, const QWidget& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool isTyping(const QLineEdit* line) const;

    Change mChange;
};
