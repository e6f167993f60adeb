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

FChainAccessible::FChainAccessible(FChainView* view) : FPartsAccessible(view, QAccessible::List) {}

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

QList<QObject*> FChainAccessible::parts() const {
    QList<QObject*> boxes;
    for (FChainBox* box : view().chains().boxes()) {
        boxes.append(box);
    }
    return boxes;
}

QAccessibleInterface* FChainAccessible::focusChild() const {
    return QAccessible::queryAccessibleInterface(view().current());
}
