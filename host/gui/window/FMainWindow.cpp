#include "host/gui/window/FMainWindow.h"

#include "host/core/FChanges.h"
#include "host/core/FIO.h"
#include "host/core/FManaged.h"
#include "host/core/FMerixCtrl.h"
#include "host/core/FSelectionSet.h"
#include "host/core/FViewCtrl.h"
#include "host/design/FConnectorInterface.h"
#include "host/gui/base/FGuiSettings.h"
#include "host/gui/base/FIcons.h"
#include "host/gui/base/FObjectPage.h"
#include "host/gui/base/FPendingEdit.h"
#include "host/gui/base/FRunLook.h"
#include "host/gui/panels/FEntriesWgt.h"
#include "host/gui/panels/FHelpPanel.h"
#include "host/gui/panels/FObjectEditorPanel.h"
#include "host/gui/panels/FObjectTreeWgt.h"
#include "host/gui/panels/FProblemModel.h"
#include "host/gui/panels/FProblemsPanel.h"
#include "host/gui/panels/FRunPanel.h"
#include "host/gui/panels/FTablePanel.h"
#include "host/gui/text/FOutputDocument.h"
#include "host/gui/window/FActions.h"
#include "host/gui/window/FDocumentTabs.h"
#include "host/gui/window/FFileDrop.h"
#include "host/gui/window/FFindField.h"
#include "host/gui/window/FManualWindow.h"
#include "host/gui/window/FNoticeBar.h"
#include "host/gui/window/FPageTabs.h"
#include "host/gui/window/FPanelDocks.h"
#include "host/gui/window/FProjectFiles.h"
#include "host/gui/window/FStartPage.h"
#include "host/run/FExternComputation.h"
#include "host/run/FResultsGeneric.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace {

const QSize usualSize(1480, 920);
constexpr int statusTime = 8000;  // milliseconds

QString projectName() {
    const QString file = FMerixCtrl::instance()->getProjectFile();
    return file.isEmpty() ? QStringLiteral("unnamed project") : QFileInfo(file).fileName();
}

}  // namespace

FMainWindow::FMainWindow() {
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(FIcons::get(QStringLiteral("merix")));
    // With grouped dragging, a tab can be dragged out of its group.
    setDockOptions(AnimatedDocks | AllowNestedDocks | AllowTabbedDocks | GroupedDragging);
    setAcceptDrops(true);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    mpProjectFiles = new FProjectFiles(*this);
    mpActions = new FActions(*this);

    auto* centre = new QWidget(this);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    mpNotices = new FNoticeBar(centre);
    mpCentre = new QStackedWidget(centre);
    mpStartPage = new FStartPage(*this);
    mpDocuments = new FDocumentTabs(centre);
    mpPages = std::make_unique<FPageTabs>(*mpDocuments, *this);
    mpCentre->addWidget(mpStartPage);
    mpCentre->addWidget(mpDocuments);
    column->addWidget(mpNotices);
    column->addWidget(mpCentre, 1);
    setCentralWidget(centre);

    makeToolbar();
    mpPanels = std::make_unique<FPanelDocks>(*this);
    mpActions->fillMenus(*menuBar());
    makeStatusBar();
    listen();

    const QSize frame(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    resize(usualSize.boundedTo(screen()->availableSize() - frame));
    restoreGeometry(FGuiSettings::getGeometry());
    showProject(situation().hasProject);
    refresh();
}

FMainWindow::~FMainWindow() {
    qApp->disconnect(this);  // the focus moves while the children are destroyed
    // Documents refer to panels, and both to members of the window, which are destroyed before its children.
    mpPages.reset();
    delete centralWidget();
    mpPanels.reset();
}

void FMainWindow::makeToolbar() {
    auto* bar = new QToolBar(QStringLiteral("Actions"), this);
    bar->setObjectName(QStringLiteral("actionBar"));
    bar->setMovable(false);
    addToolBar(bar);
    mpActions->fillToolbar(*bar);
    if (auto* run = qobject_cast<QToolButton*>(bar->widgetForAction(mpActions->get(QStringLiteral("run"))))) {
        run->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    mpFind = new FFindField(*this);
    auto* end = new QWidget(bar);
    auto* row = new QHBoxLayout(end);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    row->addWidget(mpFind, 100);  // up to its largest width, at the right edge
    bar->addWidget(end);
    setContextMenuPolicy(Qt::NoContextMenu);  // Qt's own menu could hide the toolbar for good
}

void FMainWindow::makeStatusBar() {
    mpProblems = new QToolButton(this);
    mpProblems->setObjectName(QStringLiteral("problemCount"));
    mpProblems->setAutoRaise(true);
    mpProblems->setToolTip(QStringLiteral("Show the problems of the set-ups"));
    connect(mpProblems, &QToolButton::clicked, this, [this] { mpPanels->raise(QStringLiteral("problems")); });
    statusBar()->addPermanentWidget(mpProblems);
    mpRunState = new QLabel(this);
    mpRunState->setObjectName(QStringLiteral("runState"));
    statusBar()->addPermanentWidget(mpRunState);
    const FProblemModel& problems = mpPanels->get<FProblemsPanel>().model();
    connect(&problems, &FProblemModel::checked, this, [this, &problems] { showProblemCount(problems.rowCount()); });
    showProblemCount(0);
}

void FMainWindow::showProblemCount(int count) {
    const QString problems = QStringLiteral("Problems");
    mpProblems->setText(count == 0   ? QStringLiteral("No problems")
                        : count == 1 ? QStringLiteral("1 problem")
                                     : QStringLiteral("%1 problems").arg(count));
    mpPanels->dockOf(QStringLiteral("problems"))
        ->setWindowTitle(count == 0 ? problems : QStringLiteral("%1 (%2)").arg(problems, QString::number(count)));
}

void FMainWindow::listen() {
    const FChanges* changes = FChanges::instance();
    const auto refreshSoon = [this] { mRefresh.request(); };
    connect(changes, &FChanges::objectEntered, this, refreshSoon);
    connect(changes, &FChanges::objectLeft, this, refreshSoon);
    connect(changes, &FChanges::objectChanged, this, refreshSoon);
    connect(changes, &FChanges::objectChanged, this, &FMainWindow::noteEndOfRun);
    connect(changes, &FChanges::objectLeft, this, [this](FManaged* object) { mInProgress.remove(object); });
    connect(changes, &FChanges::projectOpened, this, refreshSoon);
    connect(changes, &FChanges::projectSaved, this, refreshSoon);
    connect(changes, &FChanges::projectClosed, this, refreshSoon);
    connect(changes, &FChanges::projectClosed, mpDocuments, &FDocumentTabs::closeAll);
    connect(changes, &FChanges::stepDropped, this, refreshSoon);
    connect(&mUnsaved, &FUnsavedWork::changed, this, refreshSoon);
    connect(&mRunTarget, &FRunTarget::changed, this, refreshSoon);
    connect(FSelectionSet::instance(), &FSelectionSet::selectionReplaced, this, refreshSoon);
    connect(qApp, &QApplication::focusChanged, this, refreshSoon);
    connect(changes, &FChanges::projectSaved, this, [this](const QString& file) {
        FGuiSettings::addRecentProject(file);
        showStatus(QStringLiteral("Saved %1").arg(QFileInfo(file).fileName()));
    });
    connect(changes, &FChanges::projectOpened, this, [](const QString& file) { FGuiSettings::addRecentProject(file); });
    connect(changes, &FChanges::projectOpened, this, &FMainWindow::showFirstConnector);
}

// The picture of the set-up, with its settings and entries in the editor, is where most users go on.
void FMainWindow::showFirstConnector() {
    const QList<FConnectorInterface*> connectors = FConnectorInterface::getConnectors();
    if (!connectors.isEmpty()) {
        FManaged* first = connectors.first()->asManaged();
        showObject(first);
        showPage(first);
    }
}

FObjectPage* FMainWindow::pageInFront() const {
    return dynamic_cast<FObjectPage*>(mpDocuments->currentWidget());
}

// The actions of a menu are for what had the focus before it was opened.
void FMainWindow::noteFocus() {
    if (!QApplication::activePopupWidget() && focusWidget() != menuBar()) {
        const FObjectPage* page = pageInFront();
        mIsPageFocused = mpDocuments->isAncestorOf(focusWidget());
        mIsPartFocused = page && page->isPartFocused();
    }
}

FSituation FMainWindow::situation() const {
    FSituation now = FSituation::now(mRunTarget, mUnsaved);
    now.isPageFocused = mIsPageFocused;
    now.isPartFocused = mIsPartFocused;
    now.isLocked = mScript.isRunning();
    return now;
}

void FMainWindow::deleteSelected() {
    FObjectPage* page = mIsPartFocused ? pageInFront() : nullptr;
    if (page) {
        page->deletePart();
    } else {
        FObjectTreeWgt::destroySelected();
    }
}

// The reason is in the panel. Those of a script are for the script.
void FMainWindow::noteEndOfRun(const FManaged* object) {
    const auto* computation = dynamic_cast<const FExternComputation*>(object);
    if (!computation) {
        return;
    }
    if (!computation->canRun()) {
        mInProgress.insert(object);
    } else if (mInProgress.remove(object) && !mScript.isRunning()) {
        const FRunRecord& run = computation->getLastRun();
        if (run.state == FRunRecord::State::Failed || run.state == FRunRecord::State::TimedOut) {
            mpPanels->show(QStringLiteral("runs"));
        }
    }
}

void FMainWindow::refresh() {
    noteFocus();
    const FSituation now = situation();
    mpActions->update(now);
    setWindowTitle(now.hasProject ? QStringLiteral("%1[*] — merix").arg(projectName()) : QStringLiteral("merix"));
    setWindowModified(now.isUnsaved);
    const FExternComputation* computation = now.computation;
    mpProblems->setVisible(now.hasProject);
    mpRunState->setText(
        computation ? QStringLiteral("%1: %2").arg(computation->getName(), FRunLook::textOf(*computation)) : QString());
    if (now.hasProject != mShowsProject) {
        showProject(now.hasProject);
    }
}

void FMainWindow::showProject(bool isThere) {
    if (!isThere) {
        if (mShowsProject) {
            FGuiSettings::setState(saveState());
        }
        mpPanels->hideAll();
        mpStartPage->refresh();
        mpCentre->setCurrentWidget(mpStartPage);
    } else {
        mpCentre->setCurrentWidget(mpDocuments);
        if (!restoreState(FGuiSettings::getState())) {
            mpPanels->reset();
        }
    }
    mShowsProject = isThere;
}

void FMainWindow::refreshStartPage() {
    mpStartPage->refresh();
}

void FMainWindow::reveal(QWidget* widget) {
    for (QWidget* part = widget; part && part != this; part = part->parentWidget()) {
        QWidget* holder = part->parentWidget();
        auto* tabs = holder ? qobject_cast<QTabWidget*>(holder->parentWidget()) : nullptr;
        if (tabs && tabs->indexOf(part) >= 0) {
            tabs->setCurrentWidget(part);
        } else if (auto* dock = qobject_cast<QDockWidget*>(part)) {
            dock->show();
            dock->raise();
        }
    }
    // An editor inside it may have the focus.
    if (!widget->isAncestorOf(focusWidget())) {
        widget->setFocus();
    }
}

void FMainWindow::focusFind() {
    mpFind->start();
}

void FMainWindow::showObject(FManaged* object) {
    FSelectionSet::instance()->set({FExpr<FObject>(object)});
    mpPanels->get<FObjectTreeWgt>().reveal(object);
}

void FMainWindow::showEntry(FManaged* configuration, const QString& path) {
    showObject(configuration);
    QDockWidget* dock = mpPanels->dockOf(QStringLiteral("editor"));
    dock->show();
    dock->raise();
    // The editor shows the selection from the event loop.
    QTimer::singleShot(0, this, [this, path] { mpPanels->get<FObjectEditorPanel>().entries().showEntry(path); });
}

void FMainWindow::showFile(const Place& place) {
    const QFileInfo file(place.file);
    const QString path = file.absoluteFilePath();
    QWidget* document =
        mpDocuments->open(QStringLiteral("file:") + path, file.fileName(),
                          FIcons::get(QStringLiteral("text-x-generic")), [&path] { return new FOutputDocument(path); });
    if (auto* output = qobject_cast<FOutputDocument*>(document)) {
        output->showPlace(place.line, place.column, place.length, place.reason);
        output->setFocus();
    }
}

void FMainWindow::showPage(FManaged* object) {
    mpPages->open(object);
}

void FMainWindow::showTemplate(FManaged* file, int line, int column) {
    showObject(file);
    if (FObjectPage* page = mpPages->open(file)) {
        page->goTo(line, column);
        page->widget()->setFocus();
    }
}

void FMainWindow::showResults(const FExpr<FResultsGeneric>& results) {
    openResults(results);
}

void FMainWindow::showResultsOfRun(const FExpr<FResultsGeneric>& present, int run) {
    if (FTablePanel* shown = openResults(present)) {
        shown->showRun(run);
    }
}

FTablePanel* FMainWindow::openResults(const FExpr<FResultsGeneric>& results) {
    if (!results) {
        return nullptr;
    }
    const QString key = FTablePanel::keyOf(results);
    QWidget* document =
        mpDocuments->open(key, FTablePanel::titleOf(results), FIcons::get(QStringLiteral("results")), [&] {
            auto* shown = new FTablePanel(*this, mpPanels->get<FRunPanel>().model(), results);
            connect(
                shown, &FTablePanel::gone, this, [this, key] { mpDocuments->close(key); }, Qt::QueuedConnection);
            return shown;
        });
    document->setFocus();
    return qobject_cast<FTablePanel*>(document);
}

void FMainWindow::showHelp(const QString& topic) {
    mpPanels->get<FHelpPanel>().showTopic(topic);
    mpPanels->raise(QStringLiteral("help"));
}

void FMainWindow::showHelpText(const QString& markdown) {
    mpPanels->raise(QStringLiteral("help"));
    mpPanels->get<FHelpPanel>().showText(markdown);
}

void FMainWindow::showDocument(const QString& page) {
    if (!mpManual) {
        mpManual = new FManualWindow(this);
    }
    if (mpManual->showPage(page)) {
        mpManual->show();
        mpManual->raise();
        mpManual->activateWindow();
    } else {
        mpNotices->showNotice({QStringLiteral("The page %1 of the manual isn't installed").arg(page)});
    }
}

void FMainWindow::showAbout() {
    showHelpText(QStringLiteral("# merix %1\n\nCouples simulation programs with parametric designs.\n\n"
                                "Built with Qt %2, which is available under the LGPL, and with icons of Breeze.\n")
                     .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion())));
}

void FMainWindow::lock(bool isLocked) {
    centralWidget()->setEnabled(!isLocked);
    menuBar()->setEnabled(!isLocked);
    mpFind->setEnabled(!isLocked);
    mpPanels->setEnabled(!isLocked);
    for (QDialog* dialog : findChildren<QDialog*>()) {
        dialog->setEnabled(!isLocked);
    }
    refresh();
}

bool FMainWindow::executeLocked(const std::function<void()>& function) {
    const QPointer<QWidget> focus = QApplication::focusWidget();
    const bool isWhole = mScript.execute([&] {
        lock(true);
        function();
    });
    lock(false);
    if (focus) {
        focus->setFocus();
    }
    if (!isWhole) {
        showStatus(QStringLiteral("The script was stopped"));
    }
    if (std::exchange(mClosesAfterScript, false)) {
        QTimer::singleShot(0, this, &QWidget::close);
    }
    return isWhole;
}

void FMainWindow::stop() {
    if (FExternComputation* computation = mRunTarget.getRunning()) {
        computation->cancel();
    }
    mScript.stop();
}

void FMainWindow::partFocused() {
    mRefresh.request();
}

void FMainWindow::showStatus(const QString& text) {
    statusBar()->showMessage(text, statusTime);
}

// The script is still in the middle of a statement.
bool FMainWindow::mayStopScript() {
    const int answer =
        FIO::question(this, FMerixCtrl::getApplicationTitle(), QStringLiteral("A script is being executed."),
                      QStringLiteral("Keep running"), QStringLiteral("Stop the script and quit"), QString());
    const bool isStopped = answer == 1;
    if (isStopped) {
        stop();
    }
    return isStopped;
}

bool FMainWindow::mayClose() {
    if (mScript.isRunning()) {
        mClosesAfterScript = mayStopScript();
        return false;
    }
    if (FRunTarget::isAnyRunning()) {
        const int answer = FIO::question(this, FMerixCtrl::getApplicationTitle(),
                                         QStringLiteral("A run is in progress. It ends with the program."),
                                         QStringLiteral("Stop and quit"), QStringLiteral("Keep running"), QString(), 1);
        if (answer != 0) {
            return false;
        }
    }
    return mpProjectFiles->maySpoil();
}

void FMainWindow::closeEvent(QCloseEvent* event) {
    FPendingEdit::commitAll();
    if (!mayClose()) {
        event->ignore();
        return;
    }
    FGuiSettings::setGeometry(saveGeometry());
    if (mShowsProject) {
        FGuiSettings::setState(saveState());
    }
    event->accept();
}

void FMainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        mRefresh.request();
    }
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        emit FViewCtrl::instance()->applicationFontChanged();
    }
}

// Panels behind others are beside the window, but count as visible. The keyboard passes them by.
bool FMainWindow::focusNextPrevChild(bool next) {
    bool hasMoved = QMainWindow::focusNextPrevChild(next);
    const QWidget* first = QApplication::focusWidget();
    while (hasMoved && mpPanels->isBehind(QApplication::focusWidget())) {
        hasMoved = QMainWindow::focusNextPrevChild(next) && QApplication::focusWidget() != first;
    }
    return hasMoved;
}

// Only what no part of the window takes itself gets here.
void FMainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!mScript.isRunning() && !FFileDrop::filesIn(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

// Later, since the program from which the files come waits for the answer, and opening one may ask something.
void FMainWindow::dropEvent(QDropEvent* event) {
    const QStringList files = FFileDrop::filesIn(event->mimeData());
    event->acceptProposedAction();
    QTimer::singleShot(0, this, [this, files] { FFileDrop::take(files, *this); });
}
