#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FNavigator.h"

#include <QWidget>

class FListView;
class FProblemModel;

/** What is wrong with the set-ups. A click shows the place. */
class MERIX_EXPORT FProblemsPanel : public QWidget {
 public:
    explicit FProblemsPanel(FNavigator& navigator);

    FProblemModel& model() const { return *mpModel; }

 private:
    FProblemModel* mpModel;
    FListView* mpView;
};
