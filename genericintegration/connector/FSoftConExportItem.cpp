#include "genericintegration/connector/FSoftConExportItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "host/core/FUserStep.h"
#include "host/design/FFeatureDefinitionBase.h"

#include <QGraphicsRectItem>
#include <QGraphicsSceneDragDropEvent>

namespace {

QString nameOfSource(const FGeometryExport& value) {
    const auto* source = dynamic_cast<FManaged*>(value.getSourceObject().getStored());
    return source ? source->getName() : QString();
}

/** What an export of these objects is called. A feature definition is exported as such if it is the only one. */
QString exportName(const FObjectList& objects, const FFeatureDefinitionBase*& feature) {
    const FObject* only = objects.count() == 1 ? objects.at(0).getObject() : nullptr;
    feature = dynamic_cast<const FFeatureDefinitionBase*>(only);
    const auto* entity = dynamic_cast<const FEntity*>(only);
    if (feature && feature->isExportable()) {
        return feature->getName();
    }
    return entity && !feature ? entity->getName() + QLatin1String("_export") : QStringLiteral("geometry_export");
}

}  // namespace

FClassData FSoftConExportItem::mClass("FSoftConExportItem", &FSoftConEntryItem::mClass);

FSoftConExportItem::FSoftConExportItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object,
                                       SoftConArea area, const QString& image)
    : FClass(scene, parent, object, area, image) {
    setAcceptDrops(true);
    mFrame->setAcceptDrops(true);
}

void FSoftConExportItem::createObject(const QString& /*path*/, const QString& /*relativePath*/) {
    const FUserStep step(QStringLiteral("Add export"));
    const FExpr<FObjectList> objects(mObject);
    const FFeatureDefinitionBase* feature = nullptr;
    if (!objects) {
        return;
    }
    const QString name = exportName(*objects.ptr(), feature);
    const FExpr<FGeometryExport> value(
        new FGeometryExport(QString(), feature ? FGeometryExport::Kind::Feature : FGeometryExport::Kind::Geometry));
    if (feature) {
        value->setFeatureDefinition(FExpr<FObject>(feature));
    } else {
        value->setGeometryObjects(objects);
    }
    if (createEntry(QStringLiteral("Exports"), name, value)) {
        getScene()->callEditor(this);
    }
}

QString FSoftConExportItem::getDisplayName(const FExpr<FEntry>& entry, bool resolved) const {
    const auto* value = valueOf<FGeometryExport>(entry.ptr());
    if (!value) {
        return {};
    }
    if (value->getKind() == FGeometryExport::Kind::Geometry) {
        return value->getFileName();
    }
    if (resolved) {
        return {};
    }
    const QString source = nameOfSource(*value);
    const bool isFeature = value->getKind() == FGeometryExport::Kind::Feature;
    const QString picture = isFeature ? QStringLiteral(":/project_feature_def") : QStringLiteral(":/import");
    return source.isEmpty() ? picture : source;
}

QString FSoftConExportItem::getToolTip() const {
    const auto* value = valueOf<FGeometryExport>(entry());
    if (!value) {
        return {};
    }
    return value->getKind() == FGeometryExport::Kind::Geometry ? value->getFileName() : nameOfSource(*value);
}

void FSoftConExportItem::updateItem() {
    if (FEntry* shown = getScene() ? entry() : nullptr) {
        paintIcon(QStringLiteral(":/softConExport_"), getDisplayName(FExpr<FEntry>(shown), true), FItemIcon::light);
        FSoftConEntryItem::updateItem();
    }
}

void FSoftConExportItem::refresh() {
    FSoftConEntryItem::refresh();
    if (const FEntry* shown = entry()) {
        placeCaption(shown->getName());
    }
}

bool FSoftConExportItem::sceneEventFilter(QGraphicsItem* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::GraphicsSceneDragEnter:
            dragEnterEvent(static_cast<QGraphicsSceneDragDropEvent*>(event));
            return true;
        case QEvent::GraphicsSceneDragMove:
            dragMoveEvent(static_cast<QGraphicsSceneDragDropEvent*>(event));
            return true;
        case QEvent::GraphicsSceneDrop:
            dropEvent(static_cast<QGraphicsSceneDragDropEvent*>(event));
            return true;
        default:
            return FSoftConEntryItem::sceneEventFilter(watched, event);
    }
}

void FSoftConExportItem::dragMoveEvent(QGraphicsSceneDragDropEvent* event) {
    const FItemScene* scene = getScene();
    const FExpr<FObjectList> objects = scene ? scene->extractFObjectMimeData(event) : FExpr<FObjectList>();
    event->setAccepted(objects && objects->count() > 0);
}

void FSoftConExportItem::dropEvent(QGraphicsSceneDragDropEvent* event) {
    FItemScene* scene = getScene();
    auto* value = scene ? valueOf<FGeometryExport>(entry()) : nullptr;
    if (value) {
        const FUserStep step(QStringLiteral("Add geometry to export"));
        value->addGeometryObjects(scene->extractFObjectMimeData(event));
        scene->callEditor(this);
    }
}
