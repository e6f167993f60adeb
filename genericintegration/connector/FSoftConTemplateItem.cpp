#include "genericintegration/connector/FSoftConTemplateItem.h"

#include "genericintegration/connector/FItemScene.h"
#include "genericintegration/connector/FSceneColors.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/connector/layout/FConnectorLog.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FSoftConLayout.h"
#include "genericintegration/setup/FDefinitionGenInt.h"

#include <QFileInfo>
#include <QGraphicsSimpleTextItem>

FClassData FSoftConTemplateItem::mClass("FSoftConTemplateItem", &FSoftConObjectItem::mClass);

FSoftConTemplateItem::FSoftConTemplateItem(FItemScene* scene, QGraphicsItem* parent, const FExpr<FObject>& object,
                                           SoftConArea area, const QString& image)
    : FClass(scene, parent, object, area, image) {
    init();
}

FSoftConTemplateItem::~FSoftConTemplateItem() {
    leaveFile();
}

void FSoftConTemplateItem::leaveFile() {
    if (FGenIntFile* shown = file()) {
        shown->setContentAltered(true);
    }
}

void FSoftConTemplateItem::release() {
    leaveFile();
    FSoftConObjectItem::release();
}

void FSoftConTemplateItem::setOutOfDate(bool outOfDate) const {
    mPreviewOutOfDate = mPreviewOutOfDate || outOfDate;
    FSoftConObjectItem::setOutOfDate(outOfDate);
}

QString FSoftConTemplateItem::getToolTip() const {
    const FGenIntFile* shown = file();
    return shown ? shown->getFileName() : QString();
}

bool FSoftConTemplateItem::getPreviewText(QString& text) {
    const FGenIntFile* shown = file();
    if (!mPreviewOutOfDate || !shown) {
        return false;
    }
    mPreviewOutOfDate = false;
    text = shown->getPlainContent();
    return true;
}

void FSoftConTemplateItem::removeObject() {
    FManaged::destroy(file(), true);
    mCursor.clear();
}

void FSoftConTemplateItem::updateItem() {
    const FItemScene* scene = getScene();
    const FSoftConLayout* layout = scene ? scene->getLayout() : nullptr;
    if (!layout) {
        return;
    }
    if (layout->getSizeName() == FSoftwareConnector::smIconSize_Smallest) {
        setPixmap(drawingOf(QStringLiteral(":/softConTemplate_Small")));
        mPaintedSize = QSize();
    } else {
        QString text;
        if (!getPreviewText(text)) {
            return;
        }
        paintPreview(text, QSize(layout->getIconWidth(), layout->getIconHeight()));
    }
    FSoftConObjectItem::updateItem();
}

void FSoftConTemplateItem::paintPreview(const QString& text, const QSize& size) {
    // Every mark asks for a new picture, also those that change nothing of it.
    if (size == mPaintedSize && text == mPaintedText) {
        return;
    }
    setPixmap(QPixmap::fromImage(FItemIcon::ofText(text, {size, pixelRatio()}, FSceneColors::frame())));
    mPaintedText = text;
    mPaintedSize = size;
}

// The page shows its ground beside the round corners.
void FSoftConTemplateItem::updateLook() {
    mPaintedSize = QSize();
    setPreviewOutOfDate();
    FSoftConObjectItem::updateLook();
}

void FSoftConTemplateItem::refresh() {
    FItemScene* scene = getScene();
    if (FGenIntFile* shown = scene ? file() : nullptr) {
        placeCaption(shown->getFileName());
        scene->setTabName(FExpr<FGenIntFile>(shown));
    }
}

FGenIntFile* FSoftConTemplateItem::file() const {
    auto* shown = dynamic_cast<FGenIntFile*>(mObject.getStored());
    return shown && !shown->isNull() ? shown : nullptr;
}

void FSoftConTemplateItem::nameMissing(FGenIntFile& file, const QString& path) {
    if (path.isEmpty() || QFileInfo::exists(path)) {
        return;
    }
    const QString name = FItemCaption::lastPart(path);
    if (file.getFileName().isEmpty()) {
        file.setFileName(name);
    }
    file.setName(name);
    FConnectorLog::info(QStringLiteral("The file %1 doesn't exist").arg(path), QStringLiteral("Its template is empty"));
}

void FSoftConTemplateItem::takeFile(FGenIntFile* made) {
    const FExpr<FGenIntFile> handle(made);
    setObject(FExpr<FObject>(handle));
    FItemScene* scene = getScene();
    FDefinitionGenInt* definition = scene ? FSetUpObjects(scene->getComputation()).definition() : nullptr;
    if (definition) {
        definition->addFile(handle);
        scene->triggerAddTab(handle);
    }
}
