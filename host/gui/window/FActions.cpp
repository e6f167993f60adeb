#include "host/gui/window/FActions.h"

#include "host/gui/base/FIcons.h"
#include "host/gui/window/FActionTable.h"
#include "host/gui/window/FMainWindow.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

/** The tip with the shortcut, as a tool tip shows them. */
QString toolTipOf(const QString& tip, const QAction& action) {
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys);
}

}  // namespace

FActions::FActions(FMainWindow& window) : QObject(&window), mWindow(window) {
    for (const FActionRow& row : FActionTable::rows()) {
        QAction* action = make(row);
        mActions.insert(action->objectName(), action);
        if (!row.fill) {
            mOrder.append(action);
            // Shortcuts of actions work without a visible menu, too.
            window.addAction(action);
        }
    }
}

QAction* FActions::make(const FActionRow& row) {
    auto* action = new QAction(FIcons::get(QString::fromLatin1(row.icon)), QString::fromUtf8(row.text), this);
    action->setObjectName(QString::fromLatin1(row.id));
    action->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut), QKeySequence::PortableText));
    action->setToolTip(toolTipOf(QString::fromUtf8(row.tip), *action));
    action->setStatusTip(QString::fromUtf8(row.tip));
    action->setCheckable(row.isOn != nullptr);
    if (row.run) {
        connect(action, &QAction::triggered, this, [this, &row] { row.run(mWindow); });
    }
    return action;
}

void FActions::fillMenus(QMenuBar& bar) {
    QHash<QString, QMenu*> menus;
    QHash<QString, int> groups;
    for (const FActionRow& row : FActionTable::rows()) {
        const QString title = QString::fromLatin1(row.menu);
        QMenu*& menu = menus[title];
        if (!menu) {
            menu = bar.addMenu(title);
            menu->setToolTipsVisible(true);
            groups[title] = row.group;
        }
        if (groups.value(title) != row.group) {
            menu->addSeparator();
            groups[title] = row.group;
        }
        QAction* action = get(QString::fromLatin1(row.id));
        menu->addAction(action);
        if (row.fill) {
            auto* submenu = new QMenu(menu);
            action->setMenu(submenu);
            connect(submenu, &QMenu::aboutToShow, this, [this, &row, submenu] {
                submenu->clear();
                row.fill(*submenu, mWindow);
            });
        }
    }
}

void FActions::fillToolbar(QToolBar& bar) {
    int group = -1;
    const char* menu = nullptr;
    for (const FActionRow& row : FActionTable::rows()) {
        if (!row.isInToolbar) {
            continue;
        }
        if (menu && (qstrcmp(menu, row.menu) != 0 || group != row.group)) {
            bar.addSeparator();
        }
        menu = row.menu;
        group = row.group;
        bar.addAction(get(QString::fromLatin1(row.id)));
    }
}

void FActions::update(const FSituation& situation) {
    for (const FActionRow& row : FActionTable::rows()) {
        QAction* action = get(QString::fromLatin1(row.id));
        if (row.isOn) {
            action->setChecked(row.isOn());
        }
        QString tip = QString::fromUtf8(row.tip);
        if (row.textNow) {
            const QString text = row.textNow(situation);
            action->setText(text);
            QString plain = text;
            action->setIconText(plain.remove(QLatin1Char('&')));
            tip = action->iconText();
        }
        const char* const reason = situation.isLocked && !row.isForScripts ? "A script is being executed"
                                   : row.whyNot                            ? row.whyNot(situation)
                                                                           : nullptr;
        action->setEnabled(!reason);
        const QString whole = toolTipOf(tip, *action);
        action->setToolTip(reason ? whole + QLatin1Char('\n') + QString::fromUtf8(reason) : whole);
        action->setStatusTip(reason ? QString::fromUtf8(reason) : QString::fromUtf8(row.tip));
    }
}
