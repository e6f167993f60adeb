#pragma once

#include "host/core/FExport.h"

#include <QObject>

/** Keeps a field from undoing what is in the model: the window's Undo acts instead. */
class MERIX_EXPORT FOneUndo : public QObject {
    Q_OBJECT

 public:
    enum class Change {
        EachKey,   //!< what is typed is in the model at once
        Finished,  //!< only when it is complete, with `isModified` reset; until then, the field undoes on its own
    };

    /** @param field  gets the keys; owns the object */
    FOneUndo(QWidget* field, Change change);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    Change mChange;
};
