#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FNavigator.h"
#include "host/gui/base/FPendingEdit.h"

#include <QWidget>

class FAttributeForm;
class FEntriesWgt;
class FEntryDefsWgt;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QScrollArea;
class QSplitter;
class QStackedWidget;

/**
 * Shows and edits the selected objects: name, attributes, and the entries of a configuration or definition. With a
 * computation, or the connector of one, the entries of its configuration are below its settings. An entry is shown
 * among those of its configuration.
 */
class MERIX_EXPORT FObjectEditorPanel : public QWidget, public FPendingEdit {
    Q_OBJECT

 public:
    explicit FObjectEditorPanel(FNavigator& navigator);

    /** Rebuilds all fields, for the objects that are selected now. */
    void rebuild();
    /** While held, nothing follows the model. */
    void hold(bool isHeld);
    FEntriesWgt& entries() { return *mpEntries; }
    void commitEdit() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget* makeHeader();
    void showName();
    void showHeader();
    void showEntries();
    void orderTabs();
    void shareHeight();
    void follow();
    void clearFor(const FManaged* left);

    QStackedWidget* mpPages;
    QBoxLayout* mpHeader = nullptr;
    QLabel* mpIcon;
    QLineEdit* mpName;
    QLabel* mpClass;
    FAttributeForm* mpForm;
    FEntriesWgt* mpEntries;
    FEntryDefsWgt* mpDefined;
    QSplitter* mpSplitter;
    QScrollArea* mpScroll;
    QList<FExpr<FObject>> mShown;
    QList<FExpr<FObject>> mEdited;  //!< whose attributes are shown: the same objects, or what stands for them
    double mFormShare;              //!< the most of the height that the attributes take from the entries
    FQueuedCall mRebuild{[this] { rebuild(); }};
    FQueuedCall mShareHeight{[this] { shareHeight(); }};
    FQueuedCall mFollow{[this] { follow(); }};
};
