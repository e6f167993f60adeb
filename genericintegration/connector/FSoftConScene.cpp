#include "genericintegration/connector/FSoftConScene.h"

#include "genericintegration/connector/FConnectorExport.h"
#include "genericintegration/connector/FConnectorHelp.h"
#include "genericintegration/connector/FItemDialogs.h"
#include "genericintegration/connector/FItemFactory.h"
#include "genericintegration/connector/FItemLinks.h"
#include "genericintegration/connector/FRefusalNotice.h"
#include "genericintegration/connector/FSceneDrops.h"
#include "genericintegration/connector/FSceneFurniture.h"
#include "genericintegration/connector/FSceneMenu.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/FSoftConComputationItem.h"
#include "genericintegration/connector/FSoftConFileNameItem.h"
#include "genericintegration/connector/FSoftConImportItem.h"
#include "genericintegration/connector/FSoftConTemplateItem.h"
#include "genericintegration/connector/FSoftConView.h"
#include "genericintegration/connector/FSoftwareConnector.h"
#include "genericintegration/connector/layout/FItemCaption.h"
#include "genericintegration/connector/layout/FItemDifference.h"
#include "genericintegration/connector/layout/FSoftConLargeGridLayout.h"
#include "genericintegration/connector/layout/FSoftConListLayout.h"
#include "genericintegration/connector/layout/FSoftConMediumGridLayout.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "host/core/FDocuArea.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntry.h"
#include "host/design/FInputFile.h"
#include "host/design/FResultsFileName.h"
#include "host/gui/base/FHtmlToolTip.h"
#include "host/run/FPathManager.h"

#include <QAccessible>
#include <QAction>
#include <QFocusEvent>
#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneDragDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QToolButton>

namespace {

constexpr int doubleClickTime = 20;  // milliseconds in which a second click may follow

FSmartPtr<FSoftConLayout> layoutFor(SoftConItemSize size) {
    switch (size) {
        case SoftConItemSize::Large:
            return std::make_shared<FSoftConLargeGridLayout>();
        case SoftConItemSize::Small:
            return std::make_shared<FSoftConListLayout>();
        case SoftConItemSize::Medium:
            break;
    }
    return std::make_shared<FSoftConMediumGridLayout>();
}

QVector<FItemDifference::Row> rowsOf(const QList<FSetUpObjects::Shown>& objects) {
    QVector<FItemDifference::Row> rows;
    for (const FSetUpObjects::Shown& shown : objects) {
        rows.append({shown.object.getStored(), shown.valueType});
    }
    return rows;
}

QVector<FItemDifference::Row> rowsOf(const QList<FSoftConObjectItem*>& items) {
    QVector<FItemDifference::Row> rows;
    for (const FSoftConObjectItem* item : items) {
        rows.append({item->getObject().getStored(), FItemFactory::valueTypeOf(*item)});
    }
    return rows;
}

template <class Item>
Item* ownerOf(QGraphicsItem* item) {
    for (; item; item = item->parentItem()) {
        if (auto* found = dynamic_cast<Item*>(item)) {
            return found;
        }
    }
    return nullptr;
}

}  // namespace

FSoftConScene::FSoftConScene(FSoftwareConnector& connector)
    : QGraphicsScene(&connector),
      mConnector(connector),
      mpFurniture(new FSceneFurniture(*this)),
      mHints(*this),
      mpLinks(new FItemLinks),
      mLinkFinder(*this, *mpLinks) {
    addItem(mpLinks);
    mSelectTimer.setSingleShot(true);
    mSelectTimer.setInterval(doubleClickTime);
    connect(&mSelectTimer, &QTimer::timeout, this, &FSoftConScene::selectItem);
    connectFurniture();
    connect(this, &QGraphicsScene::focusItemChanged, this,
            [this](QGraphicsItem* item, const QGraphicsItem* /*before*/, Qt::FocusReason reason) {
                focusChanged(item, reason == Qt::TabFocusReason);
            });
    connect(FSelectionSet::instance(), &FSelectionSet::selectionReplaced, this, [this] { mpLinks->update(); });
}

FSoftConScene::~FSoftConScene() {
    clearItems();
}

void FSoftConScene::connectFurniture() {
    connect(mpFurniture, &FSceneFurniture::addRequested, this, &FSoftConScene::add);
    connect(mpFurniture, &FSceneFurniture::docuRequested, this, &FSoftConScene::showDocu);
    connect(mpFurniture, &FSceneFurniture::scanToggled, &mConnector, &FSoftwareConnector::scanForResults);
    connect(mpFurniture, &FSceneFurniture::connectRequested, &mConnector, &FSoftwareConnector::connectOtherConnector);
}

FExpr<FExternComputation> FSoftConScene::getComputation() const {
    return mConnector.getComputation();
}

// ---- following the objects ----

void FSoftConScene::doUpdate() {
    const FExpr<FExternComputation> computation = getComputation();
    if (!computation || mIsUpdating) {
        return;
    }
    const QScopedValueRollback<bool> updating(mIsUpdating, true);
    const QList<FSoftConObjectItem*> shown = mItems;
    const QList<FSetUpObjects::Shown> objects = FSetUpObjects(computation).shown();
    const FItemDifference difference(rowsOf(objects), rowsOf(shown));
    for (const int place : difference.itemsToRemove()) {
        FSoftConObjectItem* item = shown[place];
        const FExpr<FGenIntFile> file(item->getObject());
        if (file) {
            emit removeViewerTab(file);
        }
        removeObjectItem(item);
    }
    for (const int place : difference.objectsToAdd()) {
        const FExpr<FGenIntFile> file(objects[place].object);
        if (file) {
            emit addViewerTab(file);
        }
        createItem(nullptr, objects[place].object, QString(), QString());
    }
    if (!difference.itemsToRemove().isEmpty() || !difference.objectsToAdd().isEmpty()) {
        calcItemRatios();
    }
    mLinkFinder.request();
}

void FSoftConScene::takeOut(FSoftConObjectItem* item) {
    mItems.removeOne(item);
    mpLinks->forget(*item);
    removeItem(item);
    calcItemRatios();
}

void FSoftConScene::removeObjectItem(FSoftConObjectItem* item) {
    takeOut(item);
    item->release();
}

void FSoftConScene::clearItems() {
    mSelectTimer.stop();
    mSelectedObject = FExpr<FObject>();
    mpLinks->setLinks({});
    while (!mItems.isEmpty()) {
        removeObjectItem(mItems.last());
    }
}

void FSoftConScene::refreshEntryItems() {
    for (FSoftConObjectItem* item : qAsConst(mItems)) {
        if (dynamic_cast<FSoftConEntryItem*>(item)) {
            item->setOutOfDate(true);
        }
    }
}

void FSoftConScene::updateInputFileItems() {
    for (FSoftConObjectItem* item : qAsConst(mItems)) {
        if (dynamic_cast<FSoftConFileNameItem*>(item)) {
            item->updateItem();
        }
    }
}

QList<QObject*> FSoftConScene::buttonParts() const {
    return mpFurniture->buttons();
}

QList<QObject*> FSoftConScene::itemParts() const {
    QList<QObject*> parts;
    for (FSoftConObjectItem* item : mItems) {
        parts.append(item);
    }
    return parts;
}

void FSoftConScene::updateLook() {
    mHints.updateColors();
    mpFurniture->updateColors();
    for (FSoftConObjectItem* item : qAsConst(mItems)) {
        item->updateLook();
    }
}

void FSoftConScene::updateItems(int index) {
    mConnector.setOverviewChecked(index == 0);
    for (FSoftConObjectItem* item : index == 0 ? mItems : QList<FSoftConObjectItem*>()) {
        if (dynamic_cast<FSoftConTemplateItem*>(item)) {
            item->updateItem();
        }
    }
}

// ---- layout ----

SoftConArea FSoftConScene::getArea(const QPointF& point) const {
    return mGeometry ? mGeometry->areaAt(point) : SoftConNoArea;
}

void FSoftConScene::calcItemRatios() {
    mRedrawRequired = true;
    mRedraw.request();
}

void FSoftConScene::redraw() {
    if (!mRedrawRequired || FMerixCtrl::instance()->isLoadingProject() || !mLayout) {
        return;
    }
    mRedrawRequired = false;
    layOut(mConnector.getView()->roomForScene(2 * mLayout->getMinAreaHeight()));
}

void FSoftConScene::layOut(const QRect& view) {
    constexpr double barHeight = 20;  // of a scroll bar that was never shown, less a margin
    constexpr int gap = 10;
    mLayoutItems.clear();
    for (const FSoftConObjectItem* item : qAsConst(mItems)) {
        mLayoutItems.push_back(item->toLayoutItem());
    }
    QList<FLayoutItem*> placed;
    for (FLayoutItem& item : mLayoutItems) {
        if (item.area == SoftConComputationArea) {
            mLayout->placeCentreItem(item);
        }
        placed.append(&item);
    }
    mLayout->calcItemRatios(placed);
    for (int number = 0; number < placed.size(); ++number) {
        mItems[number]->fit(*placed[number]);
    }
    QRectF scene = sceneRect();
    QRectF area;
    mLayout->calcSceneRect(view, barHeight, mpFurniture->titleBarHeight(), gap, gap, scene, area);
    for (int number = 0; number < placed.size(); ++number) {
        mItems[number]->applyLayout(*placed[number]);
    }
    mGeometry.emplace(area, mpFurniture->sizes(mComputationItemSize.width()));
    mpFurniture->place(*mGeometry);
    mpLinks->place();
    mHints.place(*mGeometry, mpFurniture->titleBarHeight());
    mHints.update(mLayoutItems);
    setSceneRect(scene);
    if (QAccessible::isActive()) {
        QAccessibleEvent moved(mConnector.getView(), QAccessible::ObjectReorder);
        QAccessible::updateAccessibility(&moved);
    }
}

void FSoftConScene::emphasisChanged(const FSoftConObjectItem* item) {
    mpLinks->updateLinksOf(*item);
}

// ---- keys ----

bool FSoftConScene::event(QEvent* event) {
    const auto* key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    const bool isTab = key && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) &&
                       !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
    if (!isTab) {
        return QGraphicsScene::event(event);
    }
    event->setAccepted(mKeys.goOn(key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier)));
    return true;
}

// The base would give the focus to the first of all buttons.
void FSoftConScene::focusInEvent(QFocusEvent* event) {
    const bool isForward = event->reason() == Qt::TabFocusReason;
    QFocusEvent restored(QEvent::FocusIn, Qt::OtherFocusReason);
    QGraphicsScene::focusInEvent(&restored);
    if (isForward || event->reason() == Qt::BacktabFocusReason) {
        mKeys.enter(isForward);
    }
}

void FSoftConScene::keyPressEvent(QKeyEvent* event) {
    event->setAccepted(mKeys.press(*event));
    if (!event->isAccepted()) {
        QGraphicsScene::keyPressEvent(event);
    }
}

void FSoftConScene::focusChanged(QGraphicsItem* item, bool isByKey) {
    QObject* part = item ? item->toGraphicsObject() : nullptr;
    part = part ? part : dynamic_cast<FSoftConObjectItem*>(item);
    if (part) {
        mKeys.remember(part);
        // Nothing moves away from under the mouse.
        if (isByKey) {
            mConnector.getView()->ensureVisible(item->sceneBoundingRect(), 0, 0);
        }
        QAccessibleEvent focused(part, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    }
}

void FSoftConScene::setItemSize(SoftConItemSize size) {
    const FSmartPtr<FSoftConLayout> layout = layoutFor(size);
    if (mLayout && mLayout->getSizeName() == layout->getSizeName()) {
        return;
    }
    mLayout = layout;
    for (FSoftConObjectItem* item : qAsConst(mItems)) {
        if (auto* file = dynamic_cast<FSoftConTemplateItem*>(item)) {
            file->setPreviewOutOfDate();
        }
        item->updateItem();
    }
    calcItemRatios();
}

void FSoftConScene::resizeItem(QAction* pAction) {
    pAction->setChecked(true);
    mConnector.setItemSizeStr(pAction->text());
}

// ---- selection ----

void FSoftConScene::callEditor(const FSoftConObjectItem* item) {
    mSelectedObject = item->getEditorObject();
    mSelectTimer.start();
}

void FSoftConScene::selectItem() {
    const FExpr<FObject> wanted = std::exchange(mSelectedObject, FExpr<FObject>());
    FSelectionSet* selection = FSelectionSet::instance();
    if (wanted && !(selection->count() == 1 && selection->contains(wanted.ptr()))) {
        selection->set({wanted}, false);
    }
}

void FSoftConScene::gotoTab(const FExpr<FGenIntFile>& file) {
    mSelectTimer.stop();
    emit gotoViewerTab(file);
}

void FSoftConScene::triggerAddTab(const FExpr<FGenIntFile>& file) {
    emit addViewerTab(file);
}

void FSoftConScene::setTabName(const FExpr<FGenIntFile>& file) {
    mConnector.renameTab(file);
}

// ---- removing ----

void FSoftConScene::deleteItem(FSoftConObjectItem* item) {
    if (!item) {
        return;
    }
    const FUserStep step(QStringLiteral("software connector: delete item"));
    const FExpr<FObject> object = item->getObject();
    const FExpr<FGenIntFile> file(object);
    const FSetUpObjects setUp(getComputation());
    if (file) {
        mConnector.removeOldTab(file);
        setUp.clearTemplate(*file.ptr());
    } else if (setUp.removeTags(object.getStored())) {
        mConnector.refreshCommandFileEditors();
    }
    if (mSelectedObject == object) {
        mSelectedObject = FExpr<FObject>();
    }
    takeOut(item);
    item->removeObject();
    item->release();
}

// ---- the computation ----

void FSoftConScene::runComputation() {
    if (const FExpr<FExternComputation> computation = getComputation()) {
        computation->guiRun();
    }
}

void FSoftConScene::readResults() {
    if (const FExpr<FExternComputation> computation = getComputation()) {
        computation->rereadResults();
    }
}

void FSoftConScene::showOutputFilesPreview() {
    if (FConfigurationGenInt* configuration = FSetUpObjects(getComputation()).configuration()) {
        configuration->preview();
    }
}

// ---- help and menu ----

void FSoftConScene::showDocu(QString area) {
    const QString text = FConnectorHelp::section(
        mConnector.getPrototype()->getDocuString(static_cast<int>(FDocuArea::Description)), area);
    if (!text.isEmpty()) {
        FHtmlToolTip::show(text, &mConnector);
    }
}

void FSoftConScene::contextMenuEvent(QGraphicsSceneContextMenuEvent* event) {
    QGraphicsItem* under = itemUnder(event->scenePos());
    if (ownerOf<FSoftConComputationItem>(under)) {
        event->ignore();
        QGraphicsScene::contextMenuEvent(event);
        return;
    }
    FSceneMenu::open(*this, mConnector, getArea(event->scenePos()), ownerOf<FSoftwareConnectorItem>(under),
                     event->screenPos());
}

QGraphicsItem* FSoftConScene::itemUnder(const QPointF& point) const {
    for (QGraphicsItem* item : items(point)) {
        if (ownerOf<FSoftwareConnectorItem>(item)) {
            return item;
        }
    }
    return nullptr;
}

// ---- adding ----

void FSoftConScene::add(SoftConArea area) {
    const FRefusalNotice notice;
    switch (area) {
        case SoftConInputArea:
            addInput();
            break;
        case SoftConExportArea:
            addExport();
            break;
        case SoftConOutputArea:
            addOutput();
            break;
        case SoftConImportArea:
            addImport();
            break;
        default:
            break;
    }
}

void FSoftConScene::addInput() {
    FItemDialogs(mConnector, *this).addInput();
}

void FSoftConScene::addOutput() {
    FItemDialogs(mConnector, *this).addOutput();
}

void FSoftConScene::addImport() {
    FItemDialogs(mConnector, *this).addImport();
}

void FSoftConScene::addExport() {
    createItem(nullptr, FExpr<FObject>(new FObjectList), QString(), QString());
}

void FSoftConScene::addFile() {
    createItem(nullptr, FExpr<FObject>(FInputFile::null()), QString(), QString());
}

FSoftConObjectItem* FSoftConScene::createItem(QGraphicsItem* parent, const FExpr<FObject>& object, const QString& path,
                                              const QString& relativePath) {
    FSoftConObjectItem* item = FItemFactory::make(*this, parent, object, path, relativePath);
    if (!item) {
        return nullptr;
    }
    // Known before its object is in the model, so that an update of the scene makes no second item.
    mItems.append(item);
    if (!FItemFactory::createObject(*item, path, relativePath)) {
        removeObjectItem(item);
        return nullptr;
    }
    item->setEnabled(!mConnector.isLocked());
    item->updateItem();
    item->doUpdate();
    calcItemRatios();
    return item;
}

void FSoftConScene::createItems(const QStringList& paths, const FExpr<FObject>& type, const QString& base,
                                bool keepFolders) {
    createItems(FItemRequests::ofPaths(paths, type, base, keepFolders));
}

void FSoftConScene::createItems(const FItemRequests::List& requests) {
    const auto isTemplate = [](const FExpr<FObject>& type) {
        return dynamic_cast<const FGenIntFile*>(type.getStored()) != nullptr;
    };
    FItemRequests::createItems(requests, isTemplate, [this](const FSoftConItemStructure& request) {
        createItem(nullptr, request.mType, request.mPath, request.mRelativePath);
    });
}

bool FSoftConScene::containsImport(const QString& path) const {
    const QString name = FItemCaption::lastPart(path);
    return std::any_of(mItems.begin(), mItems.end(), [&name](const FSoftConObjectItem* item) {
        const auto* entry = dynamic_cast<const FSoftConImportItem*>(item)
                                ? dynamic_cast<const FEntry*>(item->getObject().ptr())
                                : nullptr;
        const auto* value = entry ? dynamic_cast<const FResultsFileName*>(entry->getValue().getStored()) : nullptr;
        return value && value->getFileNameText() == name;
    });
}

void FSoftConScene::scanForResults(const QDateTime& since) {
    const FExpr<FExternComputation> computation = getComputation();
    FPathManager* paths = FPathManager::instance();
    if (!mpFurniture->scanButton()->isChecked() || !computation || !paths->hasRoot()) {
        return;
    }
    const QString folder = paths->getResultsDir({}, {}) + QLatin1Char('/') + computation->getName() + QLatin1Char('/');
    const FItemRequests::List found =
        FItemRequests::ofResults(folder, since, [this](const QString& path) { return containsImport(path); });
    if (!found.isEmpty()) {
        const FUserStep step(QStringLiteral("Add result files"));
        createItems(found);
    }
}

// ---- drag and drop ----

FExpr<FObjectList> FSoftConScene::extractFObjectMimeData(const QGraphicsSceneDragDropEvent* event) const {
    return FSceneDrops::objects(*event->mimeData());
}

void FSoftConScene::dragEnterEvent(QGraphicsSceneDragDropEvent* event) {
    event->acceptProposedAction();
    QGraphicsScene::dragEnterEvent(event);
}

void FSoftConScene::dragMoveEvent(QGraphicsSceneDragDropEvent* event) {
    const SoftConArea area = getArea(event->scenePos());
    const bool isTaken = area == SoftConExportArea
                             ? !itemUnder(event->scenePos()) && extractFObjectMimeData(event)->count() > 0
                             : FSceneDrops::hasFiles(*event->mimeData(), area);
    if (isTaken) {
        event->acceptProposedAction();
    } else {
        QGraphicsScene::dragMoveEvent(event);
    }
}

void FSoftConScene::dropEvent(QGraphicsSceneDragDropEvent* event) {
    const FRefusalNotice notice;
    const SoftConArea area = getArea(event->scenePos());
    if (area != SoftConExportArea) {
        static const QHash<int, QString> labels{{SoftConInputArea, QStringLiteral("Add input files")},
                                                {SoftConOutputArea, QStringLiteral("Add output templates")},
                                                {SoftConImportArea, QStringLiteral("Add result files")}};
        const FItemRequests::List dropped = FSceneDrops::files(*event->mimeData(), area);
        if (!dropped.isEmpty()) {
            const FUserStep step(labels.value(area));
            createItems(dropped);
        }
        event->acceptProposedAction();
    } else if (itemUnder(event->scenePos())) {
        QGraphicsScene::dropEvent(event);
    } else if (const FExpr<FObjectList> list = extractFObjectMimeData(event); list->count() > 0) {
        createItem(nullptr, FExpr<FObject>(list), QString(), QString());
        event->acceptProposedAction();
    }
}

void FSoftConScene::exportIntegration() {
    const FExpr<FExternComputation> computation = getComputation();
    if (const auto* ofIntegration = dynamic_cast<const FGenIntComputation*>(computation.ptr())) {
        FConnectorExport::run(*ofIntegration, &mConnector);
    }
}
