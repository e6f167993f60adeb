#include "genericintegration/connector/FSceneDrops.h"

#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FScope.h"
#include "host/design/FEntityGroup.h"
#include "host/design/FFeatureDefinitionBase.h"
#include "host/design/FFeatureMember.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"
#include "host/gui/base/FObjectMime.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace {

const FObject* typeFor(SoftConArea area) {
    switch (area) {
        case SoftConInputArea:
            return FInputFile::null();
        case SoftConOutputArea:
            return FGenIntResultsFile::null();
        case SoftConImportArea:
            return FResultsFileName::null();
        default:
            return nullptr;
    }
}

bool canBeExported(const FManaged* object) {
    const auto* feature = dynamic_cast<const FFeatureDefinitionBase*>(object);
    const auto* entity = dynamic_cast<const FEntity*>(object);
    return (feature && feature->isExportable()) || (entity && entity->isDrawable()) ||
           dynamic_cast<const FEntityGroup*>(object) || dynamic_cast<const FFeatureMember*>(object);
}

}  // namespace

bool FSceneDrops::hasFiles(const QMimeData& data, SoftConArea area) {
    return typeFor(area) && data.hasFormat(QStringLiteral("text/uri-list")) && !data.urls().isEmpty();
}

FItemRequests::List FSceneDrops::files(const QMimeData& data, SoftConArea area) {
    FItemRequests::List requests;
    if (!hasFiles(data, area)) {
        return requests;
    }
    for (const QUrl& url : data.urls()) {
        const QFileInfo file(url.toLocalFile());
        if (file.exists()) {
            requests += FItemRequests::ofPaths({file.canonicalFilePath()}, FExpr<FObject>(typeFor(area)),
                                               file.canonicalPath(), false);
        }
    }
    return requests;
}

FExpr<FObjectList> FSceneDrops::objects(const QMimeData& data) {
    FExpr<FObjectList> list(new FObjectList);
    bool hasFeature = false;
    int count = 0;
    for (FManaged* object : FObjectMime::decode(&data)) {
        if (canBeExported(object)) {
            list->add(FExpr<FObject>(object));
            ++count;
        }
        hasFeature = hasFeature || dynamic_cast<const FFeatureDefinitionBase*>(object);
    }
    return hasFeature && count > 1 ? FExpr<FObjectList>(new FObjectList) : list;
}
