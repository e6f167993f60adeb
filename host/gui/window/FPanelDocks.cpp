#include "host/gui/window/FPanelDocks.h"

#include "host/gui/base/FIcons.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMainWindow>
#include <QMenu>
#include <QTabBar>

FPanelDocks::FPanelDocks(QMainWindow& window) : mWindow(window) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { noteFocus(now); });
}

void FPanelDocks::add(QDockWidget* dock) {
    mDocks.push_back(dock);
    dock->installEventFilter(this);
    const auto showSoon = [this] { mShowTitles.request(); };
    connect(dock, &QDockWidget::topLevelChanged, this, showSoon);
    connect(dock, &QDockWidget::dockLocationChanged, this, showSoon);
    connect(dock, &QDockWidget::visibilityChanged, this, showSoon);
}

void FPanelDocks::noteFocus(const QWidget* widget) {
    for (QDockWidget* dock : mDocks) {
        if (widget && dock->isAncestorOf(widget)) {
            mPresent = dock;
        }
    }
}

// ---- titles ----

bool FPanelDocks::isTabbed(QDockWidget* dock) const {
    const QList<QDockWidget*> others = mWindow.tabifiedDockWidgets(dock);
    return !dock->isFloating() && std::any_of(others.begin(), others.end(), [](const QDockWidget* other) {
        return !other->isHidden() && !other->isFloating();
    });
}

void FPanelDocks::showTitles() {
    for (QDockWidget* dock : mDocks) {
        QWidget* substitute = dock->titleBarWidget();
        const bool isTab = isTabbed(dock);
        if (isTab && !substitute) {
            dock->setTitleBarWidget(new QWidget(dock));
        } else if (!isTab && substitute) {
            dock->setTitleBarWidget(nullptr);
            delete substitute;
        }
    }
    for (QTabBar* tabs : mWindow.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly)) {
        tabs->installEventFilter(this);
    }
}

// ---- menu ----

bool FPanelDocks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        const auto& request = *static_cast<QContextMenuEvent*>(event);
        if (QDockWidget* dock = dockAt(watched, request)) {
            auto* menu = new QMenu(&mWindow);
            menu->setObjectName(QStringLiteral("panelMenu"));
            menu->setAttribute(Qt::WA_DeleteOnClose);
            fillMenu(*menu, dock);
            menu->popup(request.globalPos());
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

QDockWidget* FPanelDocks::dockAt(const QObject* place, const QContextMenuEvent& event) const {
    if (const auto* tabs = qobject_cast<const QTabBar*>(place)) {
        const bool isOfKey = event.reason() == QContextMenuEvent::Keyboard;
        const QString title = tabs->tabText(isOfKey ? tabs->currentIndex() : tabs->tabAt(event.pos()));
        const auto found = std::find_if(mDocks.begin(), mDocks.end(), [&](const QDockWidget* dock) {
            return !title.isEmpty() && dock->windowTitle() == title;
        });
        return found == mDocks.end() ? nullptr : *found;
    }
    for (QDockWidget* dock : mDocks) {
        // What the panel itself leaves to its dock isn't meant for the title bar.
        if (dock == place && event.pos().y() < dock->widget()->y()) {
            return dock;
        }
    }
    return nullptr;
}

void FPanelDocks::fillMenu(QMenu& menu) {
    if (mPresent) {
        fillMenu(menu, mPresent);
    } else {
        menu.addAction(QStringLiteral("Go to a panel first (Ctrl+1 to Ctrl+9)"))->setEnabled(false);
    }
}

void FPanelDocks::fillMenu(QMenu& menu, QDockWidget* dock) {
    const struct {
        const char* text;
        const char* icon;
        Qt::DockWidgetArea area;
    } places[] = {{"To the &left", "go-previous", Qt::LeftDockWidgetArea},
                  {"To the &right", "go-next", Qt::RightDockWidgetArea},
                  {"To the &bottom", "go-down", Qt::BottomDockWidgetArea}};
    menu.addSection(dock->windowTitle());
    for (const auto& place : places) {
        menu.addAction(FIcons::get(QString::fromLatin1(place.icon)), QString::fromLatin1(place.text), dock,
                       [this, dock, area = place.area] { move(dock, area); })
            ->setEnabled(dock->isFloating() || mWindow.dockWidgetArea(dock) != place.area);
    }
    menu.addAction(FIcons::get(QStringLiteral("window-new")),
                   dock->isFloating() ? QStringLiteral("Back into the &window") : QStringLiteral("&Own window"), dock,
                   [dock] {
                       dock->setFloating(!dock->isFloating());
                       dock->widget()->setFocus();
                   });
    menu.addAction(FIcons::get(QStringLiteral("window-close")), QStringLiteral("&Hide"), dock, &QWidget::hide);
}

/** Puts the dock beside the tabs of an area, if there are any, and in front of them, with the focus. */
void FPanelDocks::move(QDockWidget* dock, Qt::DockWidgetArea area) {
    const auto neighbour = std::find_if(mDocks.begin(), mDocks.end(), [&](QDockWidget* other) {
        return other != dock && !other->isHidden() && !other->isFloating() && mWindow.dockWidgetArea(other) == area;
    });
    dock->setFloating(false);
    mWindow.addDockWidget(area, dock);
    if (neighbour != mDocks.end()) {
        mWindow.tabifyDockWidget(*neighbour, dock);
    }
    dock->show();
    dock->raise();
    dock->widget()->setFocus();
}
