#include "genericintegration/connector/FItemFactory.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/FSoftConComputationItem.h"
#include "genericintegration/connector/FSoftConExportItem.h"
#include "genericintegration/connector/FSoftConFileNameItem.h"
#include "genericintegration/connector/FSoftConFileNameRefItem.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConInputTemplateItem.h"
#include "genericintegration/connector/FSoftConOutputTemplateItem.h"
#include "genericintegration/connector/layout/FConnectorLog.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FBool.h"
#include "host/core/FObjectList.h"
#include "host/design/FEntry.h"
#include "host/design/FGeometryExport.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"

namespace {

void reportType(const QString& type) {
    FConnectorLog::info(QStringLiteral("Could not add item of type %1.").arg(type));
}

/** Whether a result template of that file is in the set-up already. */
bool isKnown(const FItemScene& scene, const QString& path, const QString& relativePath) {
    const FDefinitionGenInt* definition = FSetUpObjects(scene.getComputation()).definition();
    if (path.isEmpty() || !definition) {
        return false;
    }
    const QString below = FItemPath::belowBase(path, relativePath);
    const QString name = below.isEmpty() ? FItemCaption::lastPart(path) : below;
    const auto files = definition->getFiles();
    const bool isThere = std::any_of(files.begin(), files.end(), [&name](const FExpr<FGenIntFile>& file) {
        return file && file->getFileName().compare(name, Qt::CaseInsensitive) == 0;
    });
    if (isThere) {
        FConnectorLog::info(QStringLiteral("The file %1 is already part of this set up.").arg(name),
                            QStringLiteral("Item creation aborted."));
    }
    return isThere;
}

/** Whether an item makes its object: the given one is only a prototype, or the geometry to export. */
bool isToBeMade(const FObject* object) {
    return object && (object == object->getPrototype() || dynamic_cast<const FObjectList*>(object));
}

/** An expression can give the file of another entry; where that isn't known yet, its prototype. */
const FObject* valueOf(const FEntry& entry) {
    const FExprBase& value = entry.getValue();
    const FObject* stored = value.getStored();
    if (!stored || !stored->isCmd()) {
        return stored;
    }
    return value.canSafelyBeUpdated(false) ? value.getObject() : stored->getEvaluatedType();
}

bool isLinked(const FInputFile& value) {
    const FExprBase& name = value.getFileName();
    const FObject* expression = name.isValid() ? name.getStored() : nullptr;
    if (!expression) {
        return false;
    }
    const auto suppliers = expression->getSuppliersCmdHelper({FExternComputation::null()});
    return !suppliers.empty();
}

class Maker {
 public:
    Maker(FItemScene& scene, QGraphicsItem* parent, const FExpr<FObject>& object)
        : mScene(scene), mpParent(parent), mObject(object) {}

    FSoftConObjectItem* ofObject() const {
        const FObject* object = mObject.getStored();
        if (dynamic_cast<const FExternComputation*>(object)) {
            return make<FSoftConComputationItem>(SoftConComputationArea, ":/computationImage");
        }
        if (dynamic_cast<const FGenIntCommandFile*>(object)) {
            return make<FSoftConInputTemplateItem>(SoftConInputArea, ":/unknown");
        }
        if (dynamic_cast<const FGenIntResultsFile*>(object)) {
            return make<FSoftConOutputTemplateItem>(SoftConOutputArea, ":/unknown");
        }
        if (dynamic_cast<const FObjectList*>(object)) {
            return make<FSoftConExportItem>(SoftConExportArea, ":/softConExport");
        }
        if (dynamic_cast<const FInputFile*>(object)) {
            return make<FSoftConFileNameItem>(SoftConInputArea, ":/fileName");
        }
        // The prototype stands for a link to a result of another connector.
        if (dynamic_cast<const FBool*>(object)) {
            return make<FSoftConFileNameRefItem>(SoftConInputArea, ":/fileNameRef");
        }
        if (dynamic_cast<const FResultsFileName*>(object)) {
            return make<FSoftConImportItem>(SoftConImportArea, ":/softConImport");
        }
        if (const auto* entry = dynamic_cast<const FEntry*>(object)) {
            return ofValue(valueOf(*entry));
        }
        reportType(object->getClass());
        return nullptr;
    }

 private:
    FSoftConObjectItem* ofValue(const FObject* value) const {
        if (dynamic_cast<const FGeometryExport*>(value)) {
            return make<FSoftConExportItem>(SoftConExportArea, ":/softConExport");
        }
        if (dynamic_cast<const FResultsFileName*>(value)) {
            return make<FSoftConImportItem>(SoftConImportArea, ":/softConImport");
        }
        if (const auto* file = dynamic_cast<const FInputFile*>(value)) {
            if (!isLinked(*file)) {
                return make<FSoftConFileNameItem>(SoftConInputArea, ":/fileName");
            }
            auto* item = make<FSoftConFileNameRefItem>(SoftConInputArea, ":/fileNameRef");
            item->setIsReference(true);
            return item;
        }
        reportType(value ? value->getClass() : QStringLiteral("NULL"));
        return nullptr;
    }

    template <class Item>
    Item* make(SoftConArea area, const char* image) const {
        return new Item(&mScene, mpParent, mObject, area, QString::fromLatin1(image));
    }

    FItemScene& mScene;
    QGraphicsItem* mpParent;
    const FExpr<FObject>& mObject;
};

}  // namespace

FSoftConObjectItem* FItemFactory::make(FItemScene& scene, QGraphicsItem* parent, const FExpr<FObject>& object,
                                       const QString& path, const QString& relativePath) {
    const FObject* stored = object.getStored();
    if (!stored) {
        FConnectorLog::info(QStringLiteral("Could not add NULL-item."));
        return nullptr;
    }
    if (isToBeMade(stored) && !FSetUpObjects(scene.getComputation()).definition()) {
        FConnectorLog::info(
            QStringLiteral("Could not add item: the computation has no configuration with a definition."));
        return nullptr;
    }
    if (dynamic_cast<const FGenIntResultsFile*>(stored) && isKnown(scene, path, relativePath)) {
        return nullptr;
    }
    return Maker(scene, parent, object).ofObject();
}

bool FItemFactory::createObject(FSoftConObjectItem& item, const QString& path, const QString& relativePath) {
    const FObject* stored = item.getObject().getStored();
    if (!isToBeMade(stored)) {
        return true;
    }
    item.createObject(path, dynamic_cast<const FObjectList*>(stored) ? QString() : relativePath);
    return !isToBeMade(item.getObject().getStored());
}

const FObject* FItemFactory::valueTypeOf(const FSoftConObjectItem& item) {
    if (dynamic_cast<const FSoftConExportItem*>(&item)) {
        return FGeometryExport::null();
    }
    if (dynamic_cast<const FSoftConFileNameItem*>(&item)) {
        return FInputFile::null();
    }
    return dynamic_cast<const FSoftConImportItem*>(&item) ? FResultsFileName::null() : nullptr;
}
