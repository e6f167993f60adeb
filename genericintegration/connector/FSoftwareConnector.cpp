#include "genericintegration/connector/FSoftwareConnector.h"

#include "genericintegration/connector/FConnectorHelp.h"
#include "genericintegration/connector/FSetUpObjects.h"
#include "genericintegration/connector/FSoftConEntryItem.h"
#include "genericintegration/connector/FSoftConScene.h"
#include "genericintegration/connector/FSoftConView.h"
#include "genericintegration/connector/dialogs/FSoftConConnectConnectorDialog.h"
#include "genericintegration/connector/dialogs/FSoftConTabBar.h"
#include "genericintegration/connector/layout/FLinkText.h"
#include "genericintegration/editors/FGenIntCommandFileEditor.h"
#include "genericintegration/setup/FConfigurationGenInt.h"
#include "genericintegration/setup/FConnectorCommands.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/setup/FGenIntCompSignalRapper.h"
#include "genericintegration/setup/FGenIntComputation.h"
#include "genericintegration/templates/FGenIntCommandFile.h"
#include "host/core/FBool.h"
#include "host/core/FDocuArea.h"
#include "host/core/FHistory.h"
#include "host/core/FIO.h"
#include "host/core/FImmediateUpdateBlocker.h"
#include "host/core/FIni.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FModel.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FUserInterface.h"
#include "host/core/FUserStep.h"
#include "host/design/FEntry.h"
#include "host/design/FEntryDef.h"
#include "host/design/FInputFile.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FLabelText.h"
#include "host/gui/base/FObjectPage.h"
#include "host/gui/base/FObjectPages.h"
#include "host/gui/fields/FScriptText.h"
#include "host/run/FResultsOutOfDateBlocker.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace {

const QString& sizeKey() {
    static const QString key = QStringLiteral("SoftwareConnector/lastItemSize");
    return key;
}

}  // namespace

FClassData FSoftwareConnector::mClass("FSoftwareConnector", &FSoftConBase::mClass,
                                      &connectorCommands<FSoftwareConnector>, &connectorFields<FSoftwareConnector>);

const QString FSoftwareConnector::smInputAreaLabel = QStringLiteral("Input Files");
const QString FSoftwareConnector::smOutputAreaLabel = QStringLiteral("Result Values");
const QString FSoftwareConnector::smExportAreaLabel = QStringLiteral("Input Geometry");
const QString FSoftwareConnector::smImportAreaLabel = QStringLiteral("Result Files");
const QString FSoftwareConnector::smIconSize_Largest = QStringLiteral("Large");
const QString FSoftwareConnector::smIconSize_Medium = QStringLiteral("Medium");
const QString FSoftwareConnector::smIconSize_Smallest = QStringLiteral("Small");

const FObject* FSoftwareConnector::initPrototype() {
    const FObject* prototype = FClass::initPrototype();
    prototype->addDocu(FConnectorHelp::text(), static_cast<int>(FDocuArea::Help));
    return prototype;
}

FSoftwareConnector::FSoftwareConnector(const QString& name) : FClass(name), mSetUp(*this) {
    if (!isInitializingPrototype()) {
        init();
        setImediateUpdate(true);
    }
}

// Before the parts of this object that they refer to.
FSoftwareConnector::~FSoftwareConnector() {
    setNavigator(nullptr);
    delete mView;
}

// A statement makes the same connector on every desk.
FConnectorInterface* FSoftwareConnector::createConnector(const QString& name,
                                                         const FExpr<FExternComputation>& computation) const {
    FSoftwareConnector* made = create(name, computation);
    if (!FMerixCtrl::instance()->isBusy()) {
        made->useLastItemSize();
    }
    return made;
}

FSoftwareConnector* FSoftwareConnector::create(const QString& name, const FExpr<FExternComputation>& computation) {
    auto* connector = new FSoftwareConnector(name);
    connector->mSetUp.start(computation);
    connector->registerObject();
    return connector;
}

void FSoftwareConnector::init() {
    setObjectName(QStringLiteral("softCon"));
    auto* bar = new FSoftConTabBar(this);
    bar->setObjectName(QStringLiteral("softConTabBar"));
    setTabBar(bar);
    setTabsClosable(true);
    setDocumentMode(true);
    connect(this, &QTabWidget::tabCloseRequested, this, &FSoftwareConnector::closeTab);
    mView = new FSoftConView;
    mpScene = new FSoftConScene(*this);
    mpScene->setParent(mView);
    mView->setScene(mpScene);
    mView->setAcceptDrops(true);
    connect(mpScene, &FSoftConScene::addViewerTab, this, [this](const FExpr<FGenIntFile>& file) {
        // It may have one since the connector was shown.
        if (tabOf(file.ptr()) < 0) {
            addNewTab(file);
        }
    });
    connect(mpScene, &FSoftConScene::removeViewerTab, this, &FSoftwareConnector::removeOldTab);
    connect(mpScene, &FSoftConScene::gotoViewerTab, this, &FSoftwareConnector::gotoTab);
    mOverviewButton =
        new QPushButton(FIcons::get(QStringLiteral(":/softConOverview")), QStringLiteral("Overview"), this);
    mOverviewButton->setObjectName(QStringLiteral("ButtonOverview"));
    mOverviewButton->setFlat(true);
    mOverviewButton->setCheckable(true);
    mOverviewButton->setChecked(true);
    connect(mOverviewButton, &QPushButton::clicked, this, &FSoftwareConnector::gotoOverview);
    setCornerWidget(mOverviewButton, Qt::TopLeftCorner);
    addTab(mView, QStringLiteral("Overview"));
    // Nobody could open it again.
    bar->setTabButton(0, QTabBar::RightSide, nullptr);
    bar->setTabButton(0, QTabBar::LeftSide, nullptr);
    setMinimumSize(10, 10);
    connect(bar, &QTabBar::currentChanged, this, &FSoftwareConnector::gotFocus);
    connect(bar, &FSoftConTabBar::clicked, this, &FSoftwareConnector::gotFocus);
    connect(this, &QTabWidget::currentChanged, mpScene, &FSoftConScene::updateItems);
    mpScene->setItemSize(mSetUp.mItemSize);
    mpScene->setRedrawRequired(true);
}

// ---- the object ----

QList<FManaged*> FSoftwareConnector::getParts() const {
    FManaged* computation = mSetUp.mComputation.ptr();
    return computation ? QList<FManaged*>{computation} : QList<FManaged*>();
}

bool FSoftwareConnector::doUpdate() const {
    if (mView && isInModel()) {
        const_cast<FSoftwareConnector*>(this)->follow();
    }
    return FManaged::doUpdate();
}

void FSoftwareConnector::follow() {
    const FResultsOutOfDateBlocker blocker;
    mSetUp.follow();
    listenToRuns();
    mpScene->setItemSize(mSetUp.mItemSize);
    mpScene->doUpdate();
    removeStaleTabs();
}

QList<FExpr<FGenIntFile>> FSoftwareConnector::files() const {
    const auto* definition = dynamic_cast<const FDefinitionGenInt*>(getDefinition());
    return definition ? definition->getFiles() : QList<FExpr<FGenIntFile>>();
}

// Of files that are gone, so that nobody can say which they were.
void FSoftwareConnector::removeStaleTabs() {
    QSet<int> known;
    for (const FExpr<FGenIntFile>& file : files()) {
        known.insert(file ? file->getDbId() : 0);
    }
    for (int index = count() - 1; index > 0; --index) {
        if (!known.contains(widget(index)->property("file").toInt())) {
            removePage(index);
        }
    }
}

void FSoftwareConnector::listenToRuns() {
    const auto* computation = dynamic_cast<const FGenIntComputation*>(mSetUp.mComputation.ptr());
    const FGenIntCompSignalRapper* runs = computation ? computation->getSignalRapper() : nullptr;
    if (runs == mRuns) {
        return;
    }
    stopListening();
    mRuns = runs;
    if (runs) {
        connect(runs, &FGenIntCompSignalRapper::genIntRunStarted, this, &FSoftwareConnector::prepareToScanForResults);
        connect(runs, &FGenIntCompSignalRapper::genIntRunEnded, this, &FSoftwareConnector::scanForResults);
        mRunChanged = connect(computation, &FExternComputation::runChanged, this, &FSoftwareConnector::unlockIfIdle);
    }
    // The run may have begun, or ended, while nobody listened.
    disableGui(computation && !computation->canRun());
}

void FSoftwareConnector::stopListening() {
    if (mRuns) {
        disconnect(mRuns, nullptr, this, nullptr);
        disconnect(mRunChanged);
        mRuns = nullptr;
    }
}

// A run whose program couldn't be started has no end that the computation tells.
void FSoftwareConnector::unlockIfIdle() {
    const FExternComputation* computation = mSetUp.mComputation.ptr();
    if (mIsLocked && (!computation || computation->canRun())) {
        disableGui(false);
    }
}

void FSoftwareConnector::leaveModel() {
    if (mView) {
        mWasShown = mpNavigator != nullptr;
        stopListening();
        mpScene->clearItems();
        setNavigator(nullptr);
        hide();
        setParent(nullptr);
    }
    mSetUp.destroyAll();
    FSoftConBase::leaveModel();
}

void FSoftwareConnector::enterModel() {
    FSoftConBase::enterModel();
    setOutOfDate(true);
    // Undo and redo write its fields only after this.
    if (mWasShown) {
        mShowAgain.request();
    }
}

void FSoftwareConnector::showAgain() {
    if (std::exchange(mWasShown, false) && isInModel()) {
        showConnector();
    }
}

void FSoftwareConnector::takeItemSize(unsigned int size) {
    FHistory::instance()->record(this);
    mSetUp.mItemSize = static_cast<SoftConItemSize>(size);
    setOutOfDate(true);
}

void FSoftwareConnector::setItemSizeStr(const QString& text) {
    const QMap<unsigned int, QString>& texts = FEnum<SoftConItemSize>::table().getTexts();
    if (!texts.values().contains(text)) {
        return;
    }
    const unsigned int size = texts.key(text);
    {
        const FUserStep step(QStringLiteral("Set item size"));
        takeItemSize(size);
    }
    FIni().setValue(sizeKey(), size);
}

QString FSoftwareConnector::getItemSizeStr() const {
    return FEnum<SoftConItemSize>::table().getTexts().value(static_cast<unsigned int>(mSetUp.mItemSize));
}

void FSoftwareConnector::useLastItemSize() {
    bool isNumber = false;
    const unsigned int size = FIni().value(sizeKey()).toUInt(&isNumber);
    if (isNumber && FEnum<SoftConItemSize>::table().getTexts().contains(size)) {
        takeItemSize(size);
    }
}

void FSoftwareConnector::setResultsPath(const QString& path) {
    FHistory::instance()->record(this);
    mSetUp.mResultsPath = path;
}

// ---- tabs ----

void FSoftwareConnector::setNavigator(FNavigator* navigator) {
    mpNavigator = navigator;
    while (!navigator && mView && count() > 1) {
        removePage(1);
    }
    if (navigator) {
        addMissingTabs();
    }
}

void FSoftwareConnector::addMissingTabs() {
    for (const FExpr<FGenIntFile>& file : files()) {
        if (file && tabOf(file.ptr()) < 0) {
            addNewTab(file);
        }
    }
}

FObjectPage* FSoftwareConnector::pageAt(int index) const {
    return dynamic_cast<FObjectPage*>(widget(index));
}

int FSoftwareConnector::tabOf(const FManaged* file) const {
    for (int index = 1; index < count(); ++index) {
        if (widget(index)->property("file").toInt() == file->getDbId()) {
            return index;
        }
    }
    return -1;
}

int FSoftwareConnector::addNewTab(FExpr<FGenIntFile> pFile) {
    if (!pFile || !mpNavigator || !FObjectPages::has(pFile.ptr())) {
        return 0;
    }
    FObjectPage* page = FObjectPages::make(*pFile.ptr(), *mpNavigator);
    QWidget* tab = page->widget();
    tab->setProperty("file", pFile->getDbId());
    tab->setEnabled(!mIsLocked);
    if (tab->metaObject()->indexOfSignal("gotFocus()") >= 0) {
        connect(tab, SIGNAL(gotFocus()), this, SLOT(gotFocus()));
    }
    return addTab(tab, FLabelText::literal(pFile->getFileName()));
}

void FSoftwareConnector::removePage(int index) {
    QWidget* tab = widget(index);
    FObjectPage* page = pageAt(index);
    removeTab(index);
    if (page) {
        page->letGo();
        tab->hide();
        tab->deleteLater();
    }
}

void FSoftwareConnector::removeOldTab(FExpr<FGenIntFile> pFile) {
    const int index = pFile ? tabOf(pFile.ptr()) : -1;
    if (index > 0) {
        setCurrentIndex(0);
        removePage(index);
    }
}

void FSoftwareConnector::closeTab(int index) {
    if (index > 0 && index < count()) {
        FUserInterface::instance()->commitEdits();
        removePage(index);
    }
}

void FSoftwareConnector::gotoTab(FExpr<FGenIntFile> pFile) {
    const int known = pFile ? tabOf(pFile.ptr()) : 0;
    setCurrentIndex(known >= 0 ? known : addNewTab(pFile));
}

FObjectPage* FSoftwareConnector::showPageOf(const FManaged* file) {
    for (const FExpr<FGenIntFile>& known : files()) {
        if (known.ptr() == file) {
            gotoTab(known);
            return pageAt(currentIndex());
        }
    }
    return nullptr;
}

void FSoftwareConnector::renameTab(const FExpr<FGenIntFile>& file) {
    const int index = file ? tabOf(file.ptr()) : -1;
    const QString text = file ? FLabelText::literal(file->getFileName()) : QString();
    if (index > 0 && tabText(index) != text) {
        setTabText(index, text);
    }
}

void FSoftwareConnector::gotoFirstTemplate() {
    const auto* definition = dynamic_cast<const FDefinitionGenInt*>(getDefinition());
    for (const FExpr<FGenIntFile>& file : definition ? definition->getFiles(0) : QList<FExpr<FGenIntFile>>()) {
        if (file) {
            gotoTab(file);
            return;
        }
    }
}

void FSoftwareConnector::tabInserted(int index) {
    FSoftConBase::tabInserted(index);
    showOverviewButton();
}

void FSoftwareConnector::tabRemoved(int index) {
    FSoftConBase::tabRemoved(index);
    showOverviewButton();
}

// It leads back where the first tab may be out of sight; beside it, it would be the same thing twice. A corner keeps
// the room of a button that is only hidden.
void FSoftwareConnector::showOverviewButton() {
    const bool isNeeded = tabBar()->sizeHint().width() > width();
    if (isNeeded != (cornerWidget(Qt::TopLeftCorner) == mOverviewButton)) {
        setCornerWidget(isNeeded ? mOverviewButton : nullptr, Qt::TopLeftCorner);
        mOverviewButton->setVisible(isNeeded);
    }
}

void FSoftwareConnector::gotoOverview() {
    mOverviewButton->setChecked(true);
    setCurrentIndex(0);
}

void FSoftwareConnector::setOverviewChecked(bool isChecked) {
    mOverviewButton->setChecked(isChecked);
}

// The values of an input template are in view while it is edited: those of the user's own configurations come last.
void FSoftwareConnector::gotFocus() {
    auto* editor = dynamic_cast<FGenIntCommandFileEditor*>(currentWidget());
    const FDefinition* definition = editor ? getDefinition() : nullptr;
    if (!definition) {
        return;
    }
    QList<FExpr<FObject>> own;
    QList<FExpr<FObject>> ofUser;
    for (FManaged* object : FModel::instance()->getEntities(FConfigurationGenInt::null())) {
        const auto* configuration = dynamic_cast<const FConfigurationGenInt*>(object);
        if (configuration && configuration->getDefinition().ptr() == definition) {
            (object->isInUserConfig() ? ofUser : own).append(FExpr<FObject>(object));
        }
    }
    if (!own.isEmpty()) {
        editor->setFocusToEditor();
        FSelectionSet::instance()->clear(false);
        FSelectionSet::instance()->set(own + ofUser, false);
    }
}

// ---- runs and views ----

void FSoftwareConnector::disableGui(bool disable) {
    if (mIsLocked == disable) {
        return;
    }
    mIsLocked = disable;
    if (disable && isAncestorOf(QApplication::focusWidget())) {
        // Else it would go to some other panel.
        mFocusBefore = QApplication::focusWidget();
        tabBar()->setFocus();
    }
    for (QGraphicsItem* item : mpScene->items()) {
        item->setEnabled(!disable);
    }
    for (int index = 0; index < count(); ++index) {
        widget(index)->setEnabled(!disable);
    }
    const QPointer<QWidget> focus = disable ? nullptr : std::exchange(mFocusBefore, nullptr);
    if (focus && tabBar()->hasFocus()) {
        focus->setFocus();
    }
}

void FSoftwareConnector::showConnector() {
    FUserInterface::instance()->showPage(this);
}

void FSoftwareConnector::refreshEditors(const FManaged* file) {
    const int index = file ? tabOf(file) : -1;
    if (index > 0) {
        QMetaObject::invokeMethod(widget(index), "refresh", Qt::DirectConnection);
    }
}

void FSoftwareConnector::refreshCommandFileEditors() {
    const FHistoryBlocker blocker;
    for (int index = 1; index < count(); ++index) {
        QMetaObject::invokeMethod(widget(index), "refresh", Qt::DirectConnection);
    }
    mpScene->refreshEntryItems();
}

void FSoftwareConnector::prepareToScanForResults() {
    mLastRunStart = QDateTime::currentDateTime();
}

void FSoftwareConnector::scanForResults(bool scan) {
    if (scan) {
        mpScene->scanForResults(mLastRunStart);
    }
}

void FSoftwareConnector::resizeEvent(QResizeEvent* event) {
    mpScene->setRedrawRequired(true);
    showOverviewButton();
    FSoftConBase::resizeEvent(event);
    QTimer::singleShot(0, mpScene, &FSoftConScene::redraw);
}

void FSoftwareConnector::paintEvent(QPaintEvent* event) {
    mpScene->redraw();
    FSoftConBase::paintEvent(event);
}

// ---- adding ----

void FSoftwareConnector::addFiles(const QStringList& paths, const FExpr<FObject>& type) {
    mpScene->createItems(paths, type, QString(), false);
}

FExpr<FResultsFileName> FSoftwareConnector::addOutputFile(const QString& path) {
    const FSoftConObjectItem* item =
        mpScene->createItem(nullptr, FExpr<FObject>(FResultsFileName::null()), path, QString());
    const auto* entry = item ? dynamic_cast<const FEntry*>(item->getObject().getStored()) : nullptr;
    return entry ? FExpr<FResultsFileName>(entry->getValue()) : FExpr<FResultsFileName>();
}

void FSoftwareConnector::addInputTemplateFromString(const QString& content, const QString& fileName) {
    const FUserStep step(QStringLiteral("Add input template"));
    addTemplate(FExpr<FGenIntFile>(FGenIntCommandFile::create(QString())), content, fileName);
}

FExpr<FGenIntResultsFile> FSoftwareConnector::addOutputTemplateFromString(const QString& content,
                                                                          const QString& fileName) {
    const FUserStep step(QStringLiteral("Add output template"));
    const FExpr<FGenIntResultsFile> file(FGenIntResultsFile::create(QString()));
    addTemplate(FExpr<FGenIntFile>(file), content, fileName);
    return file;
}

void FSoftwareConnector::addTemplate(const FExpr<FGenIntFile>& file, const QString& content, const QString& fileName) {
    file->setContent(content);
    file->setFileName(fileName);
    FDefinitionGenInt* definition = FSetUpObjects(getComputation()).definition();
    if (definition && mpScene->createItem(nullptr, FExpr<FObject>(file), QString(), QString())) {
        definition->addFile(file);
        mpScene->triggerAddTab(file);
    }
}

// ---- links ----

FExpr<FString> FSoftwareConnector::chooseResultsFile() {
    const FImmediateUpdateBlocker blocker;
    FSoftConConnectConnectorDialog dialog(nullptr, nullptr);
    const QStringList chosen = dialog.exec() == QDialog::Accepted ? dialog.getSelectedExpressions() : QStringList();
    return chosen.isEmpty() ? FExpr<FString>() : FExpr<FString>(new FString(chosen.first()));
}

void FSoftwareConnector::connectOtherConnector() {
    const QPointer<FSoftwareConnector> self(this);
    FSoftConConnectConnectorDialog dialog(this, this);
    if (dialog.exec() != QDialog::Accepted || !self || !isInModel()) {
        return;
    }
    const FUserStep step(QStringLiteral("Add input file"));
    for (const QString& expression : dialog.getSelectedExpressions()) {
        if (!link(expression)) {
            break;
        }
    }
}

bool FSoftwareConnector::link(const QString& expression) {
    QString fault;
    const FExprBase resolved = FScriptText::bind(expression, fault);
    const FObject* configuration = FSetUpObjects(getComputation()).configuration();
    // Each file of the set-up is a part of its configuration.
    if (configuration && resolved.getStored() && resolved.getStored()->dependsOn(configuration)) {
        FIO::warning(this, QStringLiteral("Recursion"),
                     QStringLiteral("Infinite recursion detected. Could not set new input file."));
        return false;
    }
    FSoftConObjectItem* item = mpScene->createItem(nullptr, FExpr<FObject>(FBool::null()), QString(), QString());
    if (!item) {
        return false;
    }
    auto* entry = dynamic_cast<FEntry*>(item->getObject().ptr());
    auto* file = entry ? dynamic_cast<FInputFile*>(entry->getValue().getStored()) : nullptr;
    if (!file) {
        return true;
    }
    if (!resolved.getStored() || !file->setFileName(resolved)) {
        return false;
    }
    if (const FExpr<FEntryDef> definition = entry->getDefinition()) {
        definition->setName(FLinkText::name(expression));
    }
    if (auto* linked = dynamic_cast<FSoftConEntryItem*>(item)) {
        linked->keepName();
    }
    item->updateItem();
    return true;
}
