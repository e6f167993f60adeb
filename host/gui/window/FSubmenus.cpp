#include "host/gui/window/FSubmenus.h"

#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FLabelText.h"
#include "host/gui/base/FTheme.h"
#include "host/gui/window/FMainWindow.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FPanelTable.h"
#include "host/gui/window/FProjectFiles.h"

#include <QActionGroup>
#include <QFileInfo>
#include <QMenu>

namespace {

/** A name as the next entry of a menu, whose number is its access key. */
QString numbered(const QMenu& menu, const QString& name) {
    constexpr int digits = 9;
    const int number = menu.actions().size() + 1;
    const QString shown = FLabelText::literal(name);
    return number <= digits ? QStringLiteral("&%1  %2").arg(QString::number(number), shown) : shown;
}

}  // namespace

void FSubmenus::recent(QMenu& menu, FMainWindow& window) {
    for (const QString& path : FGuiSettings::getRecentProjects()) {
        if (QFileInfo::exists(path)) {
            menu.addAction(numbered(menu, QFileInfo(path).fileName()),
                           [&window, path] { window.projectFiles().open(path); })
                ->setToolTip(path);
        }
    }
    if (menu.isEmpty()) {
        menu.addAction(QStringLiteral("None yet"))->setEnabled(false);
    }
}

void FSubmenus::examples(QMenu& menu, FMainWindow& window) {
    for (const QString& name : FProjectFiles::getExamples()) {
        menu.addAction(numbered(menu, name), [&window, name] { window.projectFiles().openExample(name); });
    }
    if (menu.isEmpty()) {
        menu.addAction(QStringLiteral("None installed"))->setEnabled(false);
    }
}

void FSubmenus::panels(QMenu& menu, FMainWindow& window) {
    for (const FPanelRow& row : FPanelTable::rows()) {
        menu.addAction(window.panels().dockOf(QString::fromLatin1(row.id))->toggleViewAction());
    }
}

void FSubmenus::appearances(QMenu& menu, FMainWindow& window) {
    using Appearance = FTheme::Appearance;
    const std::pair<Appearance, const char*> rows[] = {
        {Appearance::Desktop, "&As the desktop"}, {Appearance::Light, "&Light"}, {Appearance::Dark, "&Dark"}};
    auto* group = new QActionGroup(&menu);
    for (const auto& row : rows) {
        QAction* action = menu.addAction(QString::fromLatin1(row.second));
        action->setCheckable(true);
        action->setChecked(FTheme::getChosen() == row.first);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, &window,
                         [appearance = row.first] { FTheme::choose(appearance); });
    }
}
