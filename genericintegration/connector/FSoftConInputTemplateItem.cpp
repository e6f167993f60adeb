#include "genericintegration/connector/FSoftConInputTemplateItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/layout/FItemPath.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FUserStep.h"

FClassData FSoftConInputTemplateItem::mClass("FSoftConInputTemplateItem", &FSoftConTemplateItem::mClass);

FExpr<FObject> FSoftConInputTemplateItem::getEditorObject() const {
    const FItemScene* scene = getScene();
    const FConfigurationGenInt* configuration =
        scene ? FSetUpObjects(scene->getComputation()).configuration() : nullptr;
    return configuration ? FExpr<FObject>(configuration) : getObject();
}

void FSoftConInputTemplateItem::createObject(const QString& path, const QString& relativePath) {
    const FUserStep step(QStringLiteral("Add input template"));
    FGenIntCommandFile* made = FGenIntCommandFile::create(QString());
    made->initFromFile(path);
    if (!relativePath.isEmpty()) {
        made->setFileName(FItemPath::inFolder(path, relativePath));
    }
    nameMissing(*made, path);
    takeFile(made);
}
