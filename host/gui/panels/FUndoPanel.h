#pragma once

#include "host/core/FExport.h"

#include <QWidget>

class FUndoModel;
class QListView;

/** The steps that can be undone and redone. A click goes to the state after a step. */
class MERIX_EXPORT FUndoPanel : public QWidget {
 public:
    FUndoPanel();

    FUndoModel& model() { return *mpModel; }

 private:
    FUndoModel* mpModel;
    QListView* mpView;
};
