#include "host/gui/panels/FChainBoxAccessible.h"

#include "host/gui/panels/FChainBox.h"
#include "host/gui/panels/FChainView.h"
#include "host/run/FExternComputation.h"

#include <QGraphicsScene>

FChainBoxAccessible::FChainBoxAccessible(FChainBox* box) : QAccessibleObject(box) {}

FChainBox& FChainBoxAccessible::box() const {
    return static_cast<FChainBox&>(*object());
}

FChainView* FChainBoxAccessible::view() const {
    const QGraphicsScene* scene = box().scene();
    return scene ? qobject_cast<FChainView*>(scene->views().value(0)) : nullptr;
}

QAccessibleInterface* FChainBoxAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(view());
}

QString FChainBoxAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? box().text() : kind == QAccessible::Description ? box().toolTip() : QString();
}

QAccessible::State FChainBoxAccessible::state() const {
    QAccessible::State state;
    const FChainView* shown = view();
    state.invisible = !shown || !shown->isVisible();
    state.focusable = true;
    state.selectable = true;
    state.selected = box().isSelected();
    state.focused = box().isSelected() && shown && shown->hasFocus();
    return state;
}

QRect FChainBoxAccessible::rect() const {
    const FChainView* shown = view();
    if (!shown) {
        return {};
    }
    const QRect place = shown->mapFromScene(box().sceneBoundingRect()).boundingRect();
    return {shown->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

void* FChainBoxAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList FChainBoxAccessible::actionNames() const {
    return {pressAction(), setFocusAction()};
}

void FChainBoxAccessible::doAction(const QString& name) {
    FChainView* shown = view();
    if (shown && name == pressAction()) {
        emit shown->opened(box().computation());
    } else if (shown && name == setFocusAction()) {
        shown->setFocus();
        shown->setCurrent(&box());
    }
}

QStringList FChainBoxAccessible::keyBindingsForAction(const QString& name) const {
    return name == pressAction() ? QStringList{QStringLiteral("Return")} : QStringList();
}
