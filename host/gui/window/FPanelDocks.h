#pragma once

#include "host/core/FExport.h"
#include "host/core/FQueuedCall.h"

#include <QDockWidget>
#include <QPointer>

#include <algorithm>
#include <vector>

class FMainWindow;
class QMenu;
struct FPanelRow;

/**
 * The panels of the window, each in a dock. A dock shows its title once, in its title bar if it is alone, else in its
 * tab, and has a menu with the places that it can move to. The mouse drags a title bar or a tab.
 */
class MERIX_EXPORT FPanelDocks : public QObject {
 public:
    /** Makes all panels of FPanelTable, and arranges them. */
    explicit FPanelDocks(FMainWindow& window);
    ~FPanelDocks() override;

    /** The panel of that class, which is one of the classes in FPanelTable. */
    template <class Panel>
    Panel& get() const {
        const auto isSought = [](const QDockWidget* dock) { return dynamic_cast<Panel*>(dock->widget()) != nullptr; };
        return dynamic_cast<Panel&>(*(*std::find_if(mDocks.begin(), mDocks.end(), isSought))->widget());
    }
    /** The dock of the panel with that id; null if there is none. */
    QDockWidget* dockOf(const QString& id) const;
    /** Shows the panel in front of others, and leaves the focus where it is. */
    void show(const QString& id) const;
    /** The same, and gives it the focus. */
    void raise(const QString& id);
    /** Puts all panels where they are in a new installation, and shows them. */
    void reset();
    void hideAll();
    /** Whether a widget is in a panel that is behind others. */
    bool isBehind(const QWidget* widget) const;
    /** Whether the panels take input. */
    void setEnabled(bool isEnabled);
    /** Offers the places that the panel can move to which has the focus, or had it last. */
    void fillMenu(QMenu& menu);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void add(const FPanelRow& row);
    void arrange();
    void showTitles();
    /** Whether the title of the dock is in a tab. */
    bool isTabbed(QDockWidget* dock) const;
    void noteFocus(const QWidget* widget);
    QDockWidget* dockAt(const QObject* place, const QContextMenuEvent& event) const;
    void fillMenu(QMenu& menu, QDockWidget* dock);
    void move(QDockWidget* dock, Qt::DockWidgetArea area);

    FMainWindow& mWindow;
    std::vector<QDockWidget*> mDocks;  //!< in the order of the table
    QPointer<QDockWidget> mPresent;
    FQueuedCall mShowTitles{[this] { showTitles(); }};
};
