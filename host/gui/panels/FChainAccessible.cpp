#include "host/gui/panels/FChainAccessible.h"

#include "host/gui/panels/FChainBox.h"
#include "host/gui/panels/FChainBoxAccessible.h"
#include "host/gui/panels/FChainScene.h"
#include "host/gui/panels/FChainView.h"

namespace {

QAccessibleInterface* make(const QString& className, QObject* object) {
    Q_UNUSED(className)
    if (auto* view = qobject_cast<FChainView*>(object)) {
        return new FChainAccessible(view);
    }
    auto* box = qobject_cast<FChainBox*>(object);
    return box ? new FChainBoxAccessible(box) : nullptr;
}

}  // namespace

FChainAccessible::FChainAccessible(FChainView* view) : QAccessibleWidget(view, QAccessible::List) {}

void FChainAccessible::install() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(&make);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

FChainView& FChainAccessible::view() const {
    return static_cast<FChainView&>(*widget());
}

int FChainAccessible::childCount() const {
    return static_cast<int>(view().chains().boxes().size());
}

QAccessibleInterface* FChainAccessible::child(int index) const {
    return QAccessible::queryAccessibleInterface(view().chains().boxes().value(index));
}

int FChainAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child ? view().chains().boxes().indexOf(qobject_cast<FChainBox*>(child->object())) : -1;
}

QAccessibleInterface* FChainAccessible::childAt(int x, int y) const {
    for (FChainBox* box : view().chains().boxes()) {
        QAccessibleInterface* found = QAccessible::queryAccessibleInterface(box);
        if (found && found->rect().contains(x, y)) {
            return found;
        }
    }
    return nullptr;
}

QAccessibleInterface* FChainAccessible::focusChild() const {
    return QAccessible::queryAccessibleInterface(view().current());
}
