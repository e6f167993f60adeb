#include "genericintegration/connector/FPartAccessible.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSoftConObjectItem.h"
#include "genericintegration/connector/FSoftConScene.h"

#include <QAbstractButton>
#include <QGraphicsProxyWidget>
#include <QGraphicsSceneEvent>
#include <QGraphicsView>
#include <QPointer>

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
        return shown ? shown->getToolTip() : pressed ? pressed->toolTip() : QString();
    }
    return {};
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
    return item() ? QStringList{pressAction(), openAction(), showMenuAction()} : QStringList{pressAction()};
}

QString FPartAccessible::localizedActionName(const QString& name) const {
    return name;
}

QString FPartAccessible::localizedActionDescription(const QString& name) const {
    return name == openAction()       ? QStringLiteral("What a double click does")
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
    if (QAbstractButton* pressed = button()) {
        pressed->click();
    } else if (name == openAction()) {
        openItem();
    } else if (name == showMenuAction()) {
        showMenu();
    } else if (FItemScene* scene = item()->getScene()) {
        scene->callEditor(item());
    }
}

// As with a mouse: the release that follows a double click is no click.
void FPartAccessible::openItem() {
    const QPointer<QObject> opened(item());
    QGraphicsScene* scene = item()->scene();
    QGraphicsSceneMouseEvent twice(QEvent::GraphicsSceneMouseDoubleClick);
    scene->sendEvent(item(), &twice);
    if (opened && item()->scene()) {
        QGraphicsSceneMouseEvent release(QEvent::GraphicsSceneMouseRelease);
        scene->sendEvent(item(), &release);
    }
}

void FPartAccessible::showMenu() {
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    event.setWidget(view()->viewport());
    event.setScreenPos(rect().center());
    event.setScenePos(item()->sceneBoundingRect().center());
    item()->scene()->sendEvent(item(), &event);
}
