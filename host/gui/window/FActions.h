#pragma once

#include "host/core/FExport.h"
#include "host/gui/window/FActionRow.h"

#include <QHash>
#include <QList>
#include <QObject>

class QAction;
class QMenuBar;
class QToolBar;

/** The actions of a window, made from the rows of FActionTable. */
class MERIX_EXPORT FActions : public QObject {
 public:
    explicit FActions(FMainWindow& window);

    QAction* get(const QString& id) const { return mActions.value(id); }
    /** In the order of the table, without submenus. */
    QList<QAction*> all() const { return mOrder; }
    void fillMenus(QMenuBar& bar);
    void fillToolbar(QToolBar& bar);
    /** Enables what is possible, and sets texts that depend on the situation. */
    void update(const FSituation& situation);

 private:
    QAction* make(const FActionRow& row);

    FMainWindow& mWindow;
    QHash<QString, QAction*> mActions;
    QList<QAction*> mOrder;
};
