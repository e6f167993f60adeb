#include "genericintegration/connector/FSoftConOutputTemplateItem.h"

#include "genericintegration/connector/layout/FItemPath.h"
#include "genericintegration/templates/FGenIntResultsFile.h"
#include "host/core/FUserStep.h"

FClassData FSoftConOutputTemplateItem::mClass("FSoftConOutputTemplateItem", &FSoftConTemplateItem::mClass);

void FSoftConOutputTemplateItem::createObject(const QString& path, const QString& relativePath) {
    const FUserStep step(QStringLiteral("Add output template"));
    FGenIntResultsFile* made = FGenIntResultsFile::create(QString());
    made->initFromFile(path);
    const QString name = FItemPath::belowBase(path, relativePath);
    if (!name.isEmpty()) {
        made->setFileName(name);
    }
    nameMissing(*made, path);
    takeFile(made);
}
