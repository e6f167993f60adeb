#include "genericintegration/editors/FEntryMenu.h"

#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FExportsGroup.h"
#include "host/gui/base/FLabelText.h"

#include <QMenu>

#include <algorithm>

namespace {

void addName(QMenu& menu, const QString& label, const QString& name, const FEntryMenu::Connect& connect) {
    QAction* action = menu.addAction(FLabelText::literal(label));
    action->setData(name);
    connect(action);
}

void addEntries(QMenu& menu, const QList<FExpr<FEntryBase>>& entries, const FEntryMenu::Connect& connect) {
    for (const FExpr<FEntryBase>& handle : entries) {
        const FEntryBase* entry = handle.ptr();
        if (entry && entry->isGroup()) {
            addEntries(*menu.addMenu(FLabelText::literal(entry->getDisplayName())), entry->getEntries(), connect);
        } else if (entry) {
            addName(menu, entry->getDisplayName(), entry->getFullName(), connect);
        }
    }
}

QMenu* subMenu(const QMenu& menu, const QString& title) {
    const QList<QAction*> actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&title](const QAction* action) {
        return action->menu() && action->text() == title;
    });
    return found == actions.end() ? nullptr : (*found)->menu();
}

}  // namespace

void FEntryMenu::fill(QMenu& menu, const FDefinitionGenInt& definition, const Connect& connect) {
    addEntries(menu, definition.getEntries(), connect);
    QMenu* exports = subMenu(menu, FExportsGroup::word());
    for (const FExpr<FGenIntFile>& file : definition.getCommandFiles()) {
        if (exports && file) {
            addName(*exports, file->getFileName(), FExportsGroup::prefix() + file->getFileName(), connect);
        }
    }
}
