#include "host/gui/window/FPanelDocks.h"

#include "host/gui/base/FIcons.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FPanelTable.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHash>
#include <QMenu>
#include <QShortcut>
#include <QTabBar>

#include <utility>

namespace {

QString dockName(const QString& panel) {
    return panel + QStringLiteral("Dock");
}

}  // namespace

FPanelDocks::FPanelDocks(FMainWindow& window) : mWindow(window) {
    for (const FPanelRow& row : FPanelTable::rows()) {
        add(row);
    }
    arrange();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { noteFocus(now); });
}

// The focus moves while they are destroyed.
FPanelDocks::~FPanelDocks() {
    qDeleteAll(std::exchange(mDocks, {}));
}

void FPanelDocks::add(const FPanelRow& row) {
    const QString id = QString::fromLatin1(row.id);
    auto* dock = new QDockWidget(QString::fromLatin1(row.title), &mWindow);
    dock->setObjectName(dockName(id));
    dock->setWindowIcon(FIcons::get(QString::fromLatin1(row.icon)));
    QWidget* panel = row.make(mWindow);
    panel->setObjectName(id);
    panel->setAccessibleName(dock->windowTitle());
    dock->setWidget(panel);
    dock->toggleViewAction()->setIcon(dock->windowIcon());
    auto* shortcut = new QShortcut(QKeySequence(QString::fromLatin1(row.shortcut)), &mWindow);
    connect(shortcut, &QShortcut::activated, this, [this, id] { raise(id); });
    dock->installEventFilter(this);
    const auto showSoon = [this] { mShowTitles.request(); };
    connect(dock, &QDockWidget::topLevelChanged, this, showSoon);
    connect(dock, &QDockWidget::dockLocationChanged, this, showSoon);
    connect(dock, &QDockWidget::visibilityChanged, this, showSoon);
    mDocks.push_back(dock);
}

QDockWidget* FPanelDocks::dockOf(const QString& id) const {
    const auto found = std::find_if(mDocks.begin(), mDocks.end(),
                                    [&](const QDockWidget* dock) { return dock->objectName() == dockName(id); });
    return found == mDocks.end() ? nullptr : *found;
}

void FPanelDocks::show(const QString& id) const {
    QDockWidget* dock = dockOf(id);
    dock->show();
    dock->raise();
}

void FPanelDocks::raise(const QString& id) {
    for (const FPanelRow& row : FPanelTable::rows()) {
        if (id == QLatin1String(row.id)) {
            show(id);
            if (auto* widget = dockOf(id)->findChild<QWidget*>(QString::fromLatin1(row.focus))) {
                widget->setFocus();
            }
        }
    }
}

void FPanelDocks::hideAll() {
    for (QDockWidget* dock : mDocks) {
        dock->hide();
    }
}

bool FPanelDocks::isBehind(const QWidget* widget) const {
    return std::any_of(mDocks.begin(), mDocks.end(), [widget](const QDockWidget* dock) {
        return widget && dock->isAncestorOf(widget) && dock->visibleRegion().isEmpty();
    });
}

void FPanelDocks::setEnabled(bool isEnabled) {
    for (const QDockWidget* dock : mDocks) {
        dock->widget()->setEnabled(isEnabled);
    }
}

// ---- places ----

void FPanelDocks::arrange() {
    QHash<int, QDockWidget*> firstOfArea;
    for (const FPanelRow& row : FPanelTable::rows()) {
        QDockWidget* dock = dockOf(QString::fromLatin1(row.id));
        dock->setFloating(false);
        mWindow.addDockWidget(row.area, dock);
        QDockWidget*& first = firstOfArea[row.area];
        if (first) {
            mWindow.tabifyDockWidget(first, dock);
        } else {
            first = dock;
        }
    }
    for (QDockWidget* first : firstOfArea) {
        first->raise();
    }
    const int em = mWindow.fontMetrics().averageCharWidth();
    constexpr int leftWidth = 34;  // characters, but at most that part of the window
    constexpr int leftPart = 5;
    constexpr int rightWidth = 46;
    constexpr int rightPart = 4;
    constexpr int bottomLines = 14;
    constexpr int bottomPart = 3;
    mWindow.resizeDocks(
        {firstOfArea.value(Qt::LeftDockWidgetArea), firstOfArea.value(Qt::RightDockWidgetArea)},
        {qMin(leftWidth * em, mWindow.width() / leftPart), qMin(rightWidth * em, mWindow.width() / rightPart)},
        Qt::Horizontal);
    mWindow.resizeDocks({firstOfArea.value(Qt::BottomDockWidgetArea)},
                        {qMin(bottomLines * mWindow.fontMetrics().height(), mWindow.height() / bottomPart)},
                        Qt::Vertical);
}

// Of each area, the first panel ends in front.
void FPanelDocks::reset() {
    arrange();
    for (QDockWidget* dock : mDocks) {
        dock->show();
    }
    for (auto dock = mDocks.rbegin(); dock != mDocks.rend(); ++dock) {
        (*dock)->raise();
    }
}

void FPanelDocks::noteFocus(const QWidget* widget) {
    for (QDockWidget* dock : mDocks) {
        if (widget && dock->isAncestorOf(widget) && !isBehind(widget)) {
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
