#pragma once

#include "host/core/FQueuedCall.h"

#include <QDockWidget>
#include <QPointer>

#include <vector>

class QMainWindow;
class QMenu;

/**
 * The docks of the panels: each shows its title once, in its title bar if it is alone, else in its tab, and has a
 * menu with the places that it can move to. The mouse drags a title bar or a tab.
 */
class FPanelDocks : public QObject {
 public:
    explicit FPanelDocks(QMainWindow& window);

    void add(QDockWidget* dock);
    /** Offers the places that the panel can move to which has the focus, or had it last. */
    void fillMenu(QMenu& menu);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void showTitles();
    /** Whether the title of the dock is in a tab. */
    bool isTabbed(QDockWidget* dock) const;
    void noteFocus(const QWidget* widget);
    QDockWidget* dockAt(const QObject* place, const QContextMenuEvent& event) const;
    void fillMenu(QMenu& menu, QDockWidget* dock);
    void move(QDockWidget* dock, Qt::DockWidgetArea area);

    QMainWindow& mWindow;
    std::vector<QDockWidget*> mDocks;
    QPointer<QDockWidget> mPresent;
    FQueuedCall mShowTitles{[this] { showTitles(); }};
};
