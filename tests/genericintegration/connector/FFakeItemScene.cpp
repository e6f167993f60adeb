#include "tests/genericintegration/connector/FFakeItemScene.h"

#include "genericintegration/connector/FSoftConInputTemplateItem.h"

FSoftConObjectItem* FFakeItemScene::createItem(QGraphicsItem* parent, const FExpr<FObject>& object, const QString& path,
                                               const QString& relativePath) {
    Q_UNUSED(parent)
    return make<FSoftConInputTemplateItem>(object, SoftConInputArea, path, relativePath);
}

void FFakeItemScene::deleteItem(FSoftConObjectItem* item) {
    removeItem(item);
    item->removeObject();
    item->release();
}
