#pragma once

#include "host/core/FExport.h"
#include "host/gui/base/FNavigator.h"

#include <QWidget>

class FLogModel;
class FListView;

/** The messages of the program, the last one at the bottom. A double click shows what a message is about. */
class MERIX_EXPORT FLogPanel : public QWidget {
    Q_OBJECT

 public:
    explicit FLogPanel(FNavigator& navigator);

    FLogModel& model() { return *mpModel; }

 private:
    void showSource(const QModelIndex& index);

    FNavigator& mNavigator;
    FLogModel* mpModel;
    FListView* mpView;
    bool mFollows = true;  //!< the last message is in view, and the next one shall be
};
