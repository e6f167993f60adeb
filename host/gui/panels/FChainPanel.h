#pragma once

#include "host/core/FExport.h"
#include "host/core/FExpr.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FNavigator.h"

#include <QWidget>

class FChainScene;
class FChainView;
class FExternComputation;

/** The picture of the project's chains: which computation uses results of which, and the states of their runs. */
class MERIX_EXPORT FChainPanel : public QWidget {
    Q_OBJECT

 public:
    explicit FChainPanel(FNavigator& navigator);
    ~FChainPanel() override;

    /** Writes the picture to an SVG file that the user names. */
    void exportPicture();

 protected:
    void showEvent(QShowEvent* event) override;

 private:
    void listen();
    /** Brings the picture up to date if it is shown. */
    void follow();
    void takeSelection();
    void showSelection();
    void open(const FExpr<FExternComputation>& computation);
    void openMenu(const QPoint& globalPosition);

    FNavigator& mNavigator;
    FChainScene* mpScene;
    FChainView* mpView;
    FQueuedCall mFollow{[this] { follow(); }};
    bool mIsSelecting = false;
};
