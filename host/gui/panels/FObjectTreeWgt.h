#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"
#include "host/gui/base/FNavigator.h"

#include <QSet>
#include <QSortFilterProxyModel>
#include <QWidget>

class FObjectTreeModel;
class QLineEdit;
class QMenu;
class QTreeView;

/** The tree of all objects, with a field that filters it. Its selection is that of the program. */
class MERIX_EXPORT FObjectTreeWgt : public QWidget {
    Q_OBJECT

 public:
    explicit FObjectTreeWgt(FNavigator& navigator);

    FObjectTreeModel& model() { return *mpModel; }
    /** Opens the branches above the object and scrolls to it. */
    void reveal(const FManaged* object);
    /** Starts to edit the name of the selected object; nothing unless one is selected. */
    void renameSelected();
    /** The commands of the selection that have a menu entry, then what can be done to all objects. */
    void fillMenu(QMenu& menu);

    /** What is selected, if all of it is objects of the model, which the tree shows: none where an entry is. */
    static QList<FManaged*> selectedObjects();
    /** Destroys the selected objects in one step, after a question where that concerns more than them. */
    static void destroySelected();

 private:
    void takeSelection();
    void showSelection();
    void doubleClicked(const QModelIndex& index);
    /** Shows the tables of results, and the page of another object. */
    void open(FManaged* object);
    void openMenu(const QPoint& position);
    /** Selects a new object, whose name can be typed. */
    void startNaming(const FExpr<FManaged>& object);
    void keepExpanded();
    void restoreExpanded();
    QModelIndex shownIndexOf(const FManaged* object) const;

    FNavigator& mNavigator;
    FObjectTreeModel* mpModel;
    QSortFilterProxyModel* mpFilter;
    QLineEdit* mpSearch;
    QTreeView* mpView;
    QSet<QString> mExpanded;  //!< names of what was open before the tree was rebuilt
    bool mIsSelecting = false;
    FQueuedCall mShowSelection{[this] { showSelection(); }};
};
