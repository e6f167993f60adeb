#pragma once

#include "host/core/FExport.h"

#include <QObject>

/** Keeps a field that changes the model with each key from undoing on its own: the window's Undo acts instead. */
class MERIX_EXPORT FOneUndo : public QObject {
    Q_OBJECT

 public:
    /** @param field  gets the keys; owns the object */
    explicit FOneUndo(QWidget* field);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
