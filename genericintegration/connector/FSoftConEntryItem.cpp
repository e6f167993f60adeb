#include "genericintegration/connector/FSoftConEntryItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "host/core/FHistory.h"
#include "host/core/FMerixCtrl.h"
#include "host/design/FEntryDef.h"

FClassData FSoftConEntryItem::mClass("FSoftConEntryItem", &FSoftConObjectItem::mClass);

FSoftConEntryItem::FSoftConEntryItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object,
                                     SoftConArea area, const QString& image)
    : FClass(scene, parent, object, area, image) {
    init();
}

QString FSoftConEntryItem::getDisplayName(const FExpr<FEntry>& /*entry*/, bool /*resolved*/) const {
    return {};
}

FEntry* FSoftConEntryItem::entry() const {
    auto* shown = dynamic_cast<FEntry*>(mObject.getStored());
    return shown && !shown->isNull() ? shown : nullptr;
}

FEntry* FSoftConEntryItem::createEntry(const QString& groupName, const QString& name, const FExprBase& value) {
    const FItemScene* scene = getScene();
    const FObject* type = value.getStored()->getPrototype();
    FEntry* made = scene ? FSetUpObjects(scene->getComputation()).createEntry(groupName, name, type) : nullptr;
    if (made) {
        made->setValue(value);
        setObject(FExpr<FObject>(made));
        mIsNamed = true;
        updateEntryName();
    }
    return made;
}

QString FSoftConEntryItem::displayedName() const {
    return FItemCaption::lastPart(getDisplayName(FExpr<FEntry>(entry()), false));
}

void FSoftConEntryItem::updateEntryName() {
    const FHistory* history = FHistory::instance();
    const FEntry* named = entry();
    const QString name = displayedName();
    const bool mayRename =
        history->inTransaction() && !history->isReplaying() && !FMerixCtrl::instance()->isLoadingProject();
    if (name.isEmpty()) {
        return;
    }
    FEntryDef* definition = named->getDefinition().ptr();
    if (mIsNamed && mayRename && definition && name != named->getName() && name != mLastName) {
        definition->setName(name);
    }
    mLastName = name;
    mIsNamed = true;
}

void FSoftConEntryItem::keepName() {
    mLastName = displayedName();
    mIsNamed = true;
}

void FSoftConEntryItem::refresh() {
    if (getScene() && entry()) {
        updateEntryName();
        updateItem();
    }
}

void FSoftConEntryItem::removeObject() {
    const FExpr<FObject> kept = mObject;
    FEntry* removed = entry();
    if (removed && removed->getDefinition()) {
        setObject({});
        FSetUpObjects::removeEntry(*removed);
    }
    mCursor.clear();
}
