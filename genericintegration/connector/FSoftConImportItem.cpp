#include "genericintegration/connector/FSoftConImportItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "host/core/FObjectName.h"
#include "host/core/FString.h"
#include "host/core/FUserStep.h"
#include "host/run/FResultsGeneric.h"

#include <QGraphicsSimpleTextItem>

FClassData FSoftConImportItem::mClass("FSoftConImportItem", &FSoftConEntryItem::mClass);

void FSoftConImportItem::createObject(const QString& path, const QString& relativePath) {
    const FUserStep step(QStringLiteral("Add import"));
    const FExprBase name(new FString(FItemPath::withoutBase(path, relativePath)));
    const FExprBase value(new FResultsFileName(name, FResultsGeneric::getResultsFileType(path)));
    if (createEntry(QStringLiteral("Imports"), FItemCaption::entryName(path), value)) {
        getScene()->callEditor(this);
    }
}

QString FSoftConImportItem::getDisplayName(const FExpr<FEntry>& entry, bool resolved) const {
    const auto* value = valueOf<FResultsFileName>(entry.ptr());
    if (!value || !value->getFileName().isValid()) {
        return {};
    }
    const FExprBase& fileName = value->getFileName();
    if (resolved && fileName.canSafelyBeUpdated(false)) {
        return value->getFileNameText();
    }
    QString name = fileName.toString();
    FObjectName::correctName(name);
    return name;
}

QString FSoftConImportItem::getToolTip() const {
    return entry() ? getDisplayName(FExpr<FEntry>(entry()), true) : QString();
}

void FSoftConImportItem::updateItem() {
    const FEntry* shown = getScene() ? entry() : nullptr;
    if (!shown) {
        return;
    }
    const auto* value = valueOf<FResultsFileName>(shown);
    const QString name = value ? value->toString() : QString();
    mLabelItem->setText(name);
    paintIcon(QStringLiteral(":/softConImport_"), name, FItemIcon::light);
    FSoftConEntryItem::updateItem();
}
