#include "genericintegration/connector/FPartAccessible.h"

#include "genericintegration/connector/FItemLinks.h"
#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/FSoftConScene.h"

#include <QAbstractButton>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneEvent>
#include <QGraphicsView>

namespace {

const QString& openAction() {
    static const QString name = QStringLiteral("Open");
    return name;
}

}  // namespace

bool FPartAccessible::isPart(QObject* object) {
    const auto* proxy = qobject_cast<QGraphicsProxyWidget*>(object);
    const bool isButton =
        proxy && qobject_cast<FSoftConScene*>(proxy->scene()) && qobject_cast<QAbstractButton*>(proxy->widget());
    return isButton || dynamic_cast<FSoftConObjectItem*>(object);
}

FSoftConObjectItem* FPartAccessible::item() const {
    return dynamic_cast<FSoftConObjectItem*>(object());
}

QAbstractButton* FPartAccessible::button() const {
    const auto* proxy = qobject_cast<QGraphicsProxyWidget*>(object());
    return proxy ? qobject_cast<QAbstractButton*>(proxy->widget()) : nullptr;
}

const QGraphicsItem* FPartAccessible::graphicsItem() const {
    if (const auto* proxy = qobject_cast<QGraphicsProxyWidget*>(object())) {
        return proxy;
    }
    return item();
}

QGraphicsView* FPartAccessible::view() const {
    const QGraphicsItem* part = graphicsItem();
    return part && part->scene() ? part->scene()->views().value(0) : nullptr;
}

QAccessibleInterface* FPartAccessible::parent() const {
    const QGraphicsItem* part = graphicsItem();
    auto* owner = part ? dynamic_cast<FSoftConObjectItem*>(part->parentItem()) : nullptr;
    return QAccessible::queryAccessibleInterface(owner ? static_cast<QObject*>(owner) : view());
}

int FPartAccessible::childCount() const {
    return item() && item()->deleteProxy() ? 1 : 0;
}

QAccessibleInterface* FPartAccessible::child(int index) const {
    return index == 0 && childCount() == 1 ? QAccessible::queryAccessibleInterface(item()->deleteProxy()) : nullptr;
}

int FPartAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return child && childCount() == 1 && child->object() == item()->deleteProxy() ? 0 : -1;
}

QString FPartAccessible::text(QAccessible::Text kind) const {
    const FSoftConObjectItem* shown = item();
    const QAbstractButton* pressed = button();
    if (kind == QAccessible::Name) {
        return shown ? shown->getLabelItem()->text() : pressed ? pressed->accessibleName() : QString();
    }
    if (kind == QAccessible::Description) {
        return shown ? description() : pressed ? pressed->toolTip() : QString();
    }
    return {};
}

QString FPartAccessible::description() const {
    const auto* scene = qobject_cast<FSoftConScene*>(item()->scene());
    QStringList texts{item()->getToolTip(), scene ? scene->links().describe(*item()) : QString()};
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

QAccessible::Role FPartAccessible::role() const {
    const QAbstractButton* pressed = button();
    return !pressed ? QAccessible::ListItem : pressed->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QAccessible::State FPartAccessible::state() const {
    QAccessible::State state;
    const QGraphicsItem* part = graphicsItem();
    const QAbstractButton* pressed = button();
    const QGraphicsView* shown = view();
    state.disabled = !part || !part->isEnabled();
    state.invisible = !shown || !shown->isVisible() || !part->isVisible();
    state.offscreen = shown && !shown->rect().intersects(QRect(shown->mapFromGlobal(rect().topLeft()), rect().size()));
    state.focusable = part && (part->flags() & QGraphicsItem::ItemIsFocusable);
    state.focused = part && part->hasFocus();
    state.checkable = pressed && pressed->isCheckable();
    state.checked = pressed && pressed->isChecked();
    return state;
}

QRect FPartAccessible::rect() const {
    const QGraphicsView* shown = view();
    if (!shown) {
        return {};
    }
    const QRect place = shown->mapFromScene(graphicsItem()->sceneBoundingRect()).boundingRect();
    return {shown->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

void* FPartAccessible::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList FPartAccessible::actionNames() const {
    return item() ? QStringList{pressAction(), openAction(), showMenuAction(), setFocusAction()}
                  : QStringList{pressAction(), setFocusAction()};
}

QString FPartAccessible::localizedActionName(const QString& name) const {
    return name;
}

QString FPartAccessible::localizedActionDescription(const QString& name) const {
    return name == setFocusAction()   ? QStringLiteral("Gives it the keyboard's focus")
           : name == openAction()     ? QStringLiteral("What a double click does")
           : name == showMenuAction() ? QStringLiteral("Shows what can be done with it")
           : item()                   ? QStringLiteral("Shows it in the editor of objects")
                                      : QStringLiteral("Presses the button");
}

QStringList FPartAccessible::keyBindingsForAction(const QString& name) const {
    Q_UNUSED(name)
    return {};
}

void FPartAccessible::doAction(const QString& name) {
    const QGraphicsItem* part = graphicsItem();
    if (!part || !part->isEnabled()) {
        return;
    }
    if (name == setFocusAction()) {
        setFocus();
    } else if (QAbstractButton* pressed = button()) {
        pressed->click();
    } else if (name == openAction()) {
        item()->open();
    } else if (name == showMenuAction()) {
        showMenu();
    } else if (FItemScene* scene = item()->getScene()) {
        scene->callEditor(item());
    }
}

void FPartAccessible::setFocus() {
    if (QGraphicsView* shown = view()) {
        shown->setFocus();
        const_cast<QGraphicsItem*>(graphicsItem())->setFocus();
    }
}

void FPartAccessible::showMenu() {
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    event.setWidget(view()->viewport());
    event.setScreenPos(rect().center());
    event.setScenePos(item()->sceneBoundingRect().center());
    item()->scene()->sendEvent(item(), &event);
}
