#include "genericintegration/connector/FConnectorAccessible.h"

#include "genericintegration/connector/FPartAccessible.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"

namespace {

QAccessibleInterface* make(const QString& className, QObject* object) {
    Q_UNUSED(className)
    if (auto* view = qobject_cast<FSoftConView*>(object)) {
        return new FConnectorAccessible(view);
    }
    return FPartAccessible::isPart(object) ? new FPartAccessible(object) : nullptr;
}

}  // namespace

FConnectorAccessible::FConnectorAccessible(FSoftConView* view) : FPartsAccessible(view, QAccessible::Canvas) {}

void FConnectorAccessible::install() {
    static const bool isInstalled = [] {
        QAccessible::installFactory(&make);
        return true;
    }();
    Q_UNUSED(isInstalled)
}

QList<QObject*> FConnectorAccessible::parts() const {
    const FSoftConScene* scene = static_cast<const FSoftConView*>(widget())->connectorScene();
    return scene ? scene->buttonParts() + scene->itemParts() : QList<QObject*>();
}
